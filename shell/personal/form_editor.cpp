#include "shell/personal/form_editor.h"

#include <utility>

#include "dialogs/message_boxes.h"
#include "shell/personal/form_program_choice.h"
#include "shell/personal/settings.h"

namespace orm {
namespace {
const TextOptions kPath{.longest = 250, .width = 60};
}

bool EditorPresenti(RunState& stato, const Editors& editors) {
  return stato.player.ProgramExists(editors.EditorTesti) &&
         stato.player.ProgramExists(editors.EditorConfigurazione);
}

FrmPerEditor::FrmPerEditor(RunState& stato)
    : Form("frmPER_Editor", "SCELTA DEI PROGRAMMI CON CUI INTERFACCIARE LA PROCEDURA"),
      Label4(*this, "Label4", "Fornire i percorsi completi dei programmi da utilizzare"),
      casellatesto1(*this, "casellatesto1", "PROGRAMMA per VISUALIZZAZIONE e STAMPA delle PARCELLE",
                    kPath),
      cmdCerca1(*this, "cmdCerca(0)", "Cerca..."),
      casellatesto2(*this, "casellatesto2", "PROGRAMMA per EDITARE i file  ASCII di Configurazione",
                    kPath),
      cmdCerca2(*this, "cmdCerca(1)", "Cerca..."),
      CasellaTesto3(*this, "CasellaTesto3",
                    "PROGRAMMA per VISUALIZZARE i file PDF (Acrobat Reader)", kPath),
      cmdCerca3(*this, "cmdCerca(2)", "Cerca..."),
      Label3(*this, "Label3", "", Label::Style::Warning),
      cmdOK(*this, "cmdOK", "&O.K.", Button::Role::Default),
      stato_(stato) {
  SetContent(Column({Label4, Row({casellatesto1, cmdCerca1}), Row({casellatesto2, cmdCerca2}),
                     Row({CasellaTesto3, cmdCerca3}), Label3, Buttons({cmdOK})}));
  casellatesto1.SetText(stato.editors.EditorTesti);
  casellatesto2.SetText(stato.editors.EditorConfigurazione);
  CasellaTesto3.SetText(stato.editors.LettorePdf);
  cmdCerca1.onPress = [this] { Search(casellatesto1); };
  cmdCerca2.onPress = [this] { Search(casellatesto2); };
  cmdCerca3.onPress = [this] { Search(CasellaTesto3); };
  cmdOK.onPress = [this] { Confirm(); };
  TellMissing();
}

Editors FrmPerEditor::Taken() const {
  return {casellatesto1.Text(), casellatesto2.Text(), CasellaTesto3.Text()};
}

void FrmPerEditor::Search(TestoBox& field) {
  FrmGenListaFile choice(stato_.player, field.Text());
  stato_.player.Show(choice);
  if (!choice.Percorso.empty()) field.SetText(choice.Percorso);
}

void FrmPerEditor::TellMissing() {
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

void FrmPerEditor::Confirm() {
  const Editors taken = Taken();
  if (!EditorPresenti(stato_, taken)) {
    stato_.player.Ask(
        Avviso("UNO o ENTRAMBI I PROGRAMMI PROPOSTI COME EDITOR NON SONO RINTRACCIABILI NELLA "
               "POSIZIONE INDICATA.\n"
               "DARE IL NOME ED IL PERCORSO ESATTO."));
    return;
  }
  TryAndStay(stato_.player, [&] {
    const Editors before = std::exchange(stato_.editors, taken);
    try {
      ScriviEditor(stato_);
    } catch (const RuntimeFailure&) {
      stato_.editors = before;
      throw;
    }
    Close();
  });
}

}  // namespace orm
