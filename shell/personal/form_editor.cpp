#include "shell/personal/form_editor.h"

#include "dialogs/message_boxes.h"
#include "shell/personal/form_program_choice.h"
#include "shell/personal/settings.h"

namespace orm {

bool EditorPresenti(RunState& stato, const Editors& editors) {
  return stato.player.ProgramExists(editors.EditorTesti) &&
         stato.player.ProgramExists(editors.EditorConfigurazione);
}

FrmPerEditor::FrmPerEditor(RunState& stato)
    : Form("frmPER_Editor", "SCELTA DEI PROGRAMMI CON CUI INTERFACCIARE LA PROCEDURA"),
      stato_(stato) {
  SetContent(Column({Label4, Row({casellatesto1, cmdCerca1}), Row({casellatesto2, cmdCerca2}),
                     Row({CasellaTesto3, cmdCerca3}), Label3, Buttons({cmdOK})}));
  casellatesto1.SetText(stato.editors.EditorTesti);
  casellatesto2.SetText(stato.editors.EditorConfigurazione);
  CasellaTesto3.SetText(stato.editors.LettorePdf);
  cmdCerca1.onPress = [this] { Cerca(casellatesto1); };
  cmdCerca2.onPress = [this] { Cerca(casellatesto2); };
  cmdCerca3.onPress = [this] { Cerca(CasellaTesto3); };
  cmdOK.onPress = [this] { Conferma(); };
  casellatesto1.onChange = casellatesto2.onChange = [this] { DiciMancanti(); };
  DiciMancanti();
}

void FrmPerEditor::Cerca(TestoBox& campo) {
  FrmGenListaFile scelta(stato_.player, campo.Text());
  stato_.player.Show(scelta);
  const std::string& percorso = scelta.File1.Text();
  if (scelta.Confermato() && !percorso.empty()) campo.SetText(percorso);
}

void FrmPerEditor::DiciMancanti() {
  const bool testi = stato_.player.ProgramExists(casellatesto1.Text());
  const bool configurazione = stato_.player.ProgramExists(casellatesto2.Text());
  std::string text;
  if (!testi && !configurazione) {
    text =
        "I PROGRAMMI NON SONO RINTRACCIABILI NELLE POSIZIONI INDICATE\n"
        "DARE I NOMI ED I PERCORSI ESATTI\noppure premi per ognuno CERCA...";
  } else if (!testi || !configurazione) {
    text = std::string(testi ? "IL PROGRAMMA DI EDITOR" : "IL PROGRAMMA DI WORD PROCESSOR") +
           " PROPOSTO NON È RINTRACCIABILE NELLA POSIZIONE INDICATA\n"
           "DARE IL NOME ED IL PERCORSO ESATTO\noppure premi CERCA...";
  }
  Label3.SetText(text);
  Label3.SetVisible(!text.empty());
}

void FrmPerEditor::Conferma() {
  const Editors scelti{casellatesto1.Text(), casellatesto2.Text(), CasellaTesto3.Text()};
  if (!EditorPresenti(stato_, scelti)) {
    stato_.player.Ask(
        Avviso("UNO o ENTRAMBI I PROGRAMMI PROPOSTI COME EDITOR NON SONO RINTRACCIABILI NELLA "
               "POSIZIONE INDICATA.\n"
               "DARE IL NOME ED IL PERCORSO ESATTO."));
    return;
  }
  TryAndStay(stato_.player, [&] {
    ScriviEditor(stato_.folder, scelti);
    stato_.editors = scelti;
    Esci(Uscita::Conferma);
  });
}

}  // namespace orm
