// The memo.
#include "shell/memo/form_memo.h"

#include "dialogs/message_boxes.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "shell/memo/rtf.h"

namespace orm {

void MostraMemo(RunState& stato) {
  FrmGenVisualizzaRtf form(stato);
  form.NomeFile = kFileMemo;
  stato.player.Show(form);
}

void EditaMemo(RunState& stato) { stato.player.StartProgram(stato.editors.EditorTesti, kFileMemo); }

FrmGenVisualizzaRtf::FrmGenVisualizzaRtf(RunState& stato)
    : Form("frmGEN_VisualizzaRTF", "MEMO"), stato_(stato) {
  SetContent(Column({RichTextBox1}));
}

void FrmGenVisualizzaRtf::OnOpen() {
  if (!stato_.folder.Exists(NomeFile)) {
    RichTextBox1.SetDocument(PlainDocument("NON ESISTE UN FILE MEMO :\nLO SI PUÓ CREARE ADESSO"));
    return;
  }
  letto_ = stato_.folder.Read(NomeFile);
  try {
    RtfReading lettura = ReadRtf(letto_);
    perdite_ = std::move(lettura.losses);
    RichTextBox1.SetDocument(std::move(lettura.document));
  } catch (RuntimeFailure& failure) {
    throw failure.AtFile(NomeFile);
  }
}

std::vector<std::string> FrmGenVisualizzaRtf::Rischi() const {
  std::vector<std::string> rischi = perdite_;
  if (stato_.folder.Exists(NomeFile) && stato_.folder.Read(NomeFile) != letto_)
    rischi.emplace_back("modifiche fatte nel frattempo da un altro programma");
  return rischi;
}

// A name that no file has yet, so that nothing that was put aside before is lost.
std::string FrmGenVisualizzaRtf::NomeDelPrecedente() const {
  const std::string radice = NomeFile.substr(0, NomeFile.find_last_of('.')) + "_ORIGINALE";
  std::string nome = radice + ".RTF";
  for (int n = 2; stato_.folder.Exists(nome); ++n) nome = radice + NumberText(n) + ".RTF";
  return nome;
}

void FrmGenVisualizzaRtf::OnWindowClose() {
  if (!RichTextBox1.Edited()) return Close();
  TryAndStay(stato_.player, [this] {
    const std::vector<std::string> rischi = Rischi();
    const Answer risposta = rischi.empty() && !fallito_ ? Answer::Yes : ChiediSeSalvare(rischi);
    if (risposta == Answer::Cancel) return;
    if (risposta == Answer::Yes) Salva(!rischi.empty());
    Close();
  });
}

Answer FrmGenVisualizzaRtf::ChiediSeSalvare(const std::vector<std::string>& rischi) const {
  std::string testo;
  if (fallito_) testo += "L'ultimo salvataggio non è riuscito.\n\n";
  if (!rischi.empty()) {
    testo += "Il file " + NomeFile + " contiene elementi che questa finestra non conserva :\n";
    for (const std::string& rischio : rischi) testo += " - " + rischio + "\n";
    testo += "\nSalvando, il file di prima resta con il nome " + NomeDelPrecedente() + ".\n";
  }
  return stato_.player.Ask({kAttenzione, testo + "SALVARE LE MODIFICHE ?",
                            MessageBox::Icon::Exclamation, MessageBox::Buttons::YesNoCancel});
}

void FrmGenVisualizzaRtf::Salva(bool conservaIlPrecedente) {
  fallito_ = true;
  const std::string bytes = WriteRtf(RichTextBox1.Document());
  try {
    ReadRtf(bytes);  // what would not open again is not saved
  } catch (RuntimeFailure& failure) {
    throw failure.AtFile(NomeFile);
  }
  if (conservaIlPrecedente)
    stato_.folder.Replace(NomeDelPrecedente(), stato_.folder.Read(NomeFile));
  stato_.folder.Replace(NomeFile, bytes);
  fallito_ = false;
}

}  // namespace orm
