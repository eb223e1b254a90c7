// The memo.
#include "shell/memo/form_memo.h"

#include <algorithm>
#include <string_view>

#include "dialogs/message_boxes.h"
#include "runtime/failure.h"
#include "shell/memo/rtf.h"
#include "tariff/files/damaged_file.h"

namespace orm {
namespace {

constexpr const char* kAvviso[] = {"NON ESISTE UN FILE MEMO :", "LO SI PUÓ CREARE ADESSO"};

// What was written around the notice with which a memo begins, or into its lines.
RichDocument SenzaAvviso(RichDocument document) {
  for (const std::string_view avviso : kAvviso)
    for (auto p = document.paragraphs.begin(); p != document.paragraphs.end(); ++p) {
      const auto run = std::ranges::find_if(
          p->runs, [&](const RichRun& r) { return r.text.find(avviso) != std::string::npos; });
      if (run == p->runs.end()) continue;
      run->text.erase(run->text.find(avviso), avviso.size());
      if (run->text.empty()) p->runs.erase(run);
      if (p->runs.empty()) document.paragraphs.erase(p);
      break;
    }
  return document;
}

}  // namespace

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
    RichTextBox1.SetDocument(PlainDocument(std::string(kAvviso[0]) + "\n" + kAvviso[1]));
    nuovo_ = true;
    return;
  }
  letto_ = stato_.folder.Read(NomeFile);
  try {
    RtfReading lettura = ReadRtf(letto_);
    perdite_ = std::move(lettura.losses);
    RichTextBox1.SetDocument(std::move(lettura.document));
  } catch (RuntimeFailure& failure) {
    stato_.player.Ask(FailureBox(failure.AtFile(NomeFile)));
    perdite_.emplace_back("il testo di prima, che non si è potuto leggere");
  }
}

std::vector<std::string> FrmGenVisualizzaRtf::Rischi() const {
  std::vector<std::string> rischi = perdite_;
  if (stato_.folder.Exists(NomeFile) && stato_.folder.Read(NomeFile) != letto_)
    rischi.emplace_back("modifiche fatte nel frattempo da un altro programma");
  return rischi;
}

void FrmGenVisualizzaRtf::OnWindowClose() {
  if (!RichTextBox1.Edited()) return Close();
  TryAndStay(stato_.player, [this] {
    const std::vector<std::string> rischi = Rischi();
    const Answer risposta = rischi.empty() && !fallito_ ? Answer::Yes : ChiediSeSalvare(rischi);
    if (risposta == Answer::Cancel) return;
    if (risposta == Answer::Yes) Salva(!rischi.empty());
    Esci(risposta == Answer::Yes ? Uscita::Conferma : Uscita::Finestra);
  });
}

std::vector<std::string> FrmGenVisualizzaRtf::Hidden() const {
  return {WriteRtf(RichTextBox1.Document())};
}

void FrmGenVisualizzaRtf::SetHidden(const std::vector<std::string>& testo) {
  TryAndStay(stato_.player, [&] { RichTextBox1.Edit(ReadRtf(testo.front()).document); });
}

Answer FrmGenVisualizzaRtf::ChiediSeSalvare(const std::vector<std::string>& rischi) const {
  std::string testo;
  if (fallito_) testo += "L'ultimo salvataggio non è riuscito.\n\n";
  if (!rischi.empty()) {
    testo += "Il file " + NomeFile + " contiene elementi che questa finestra non conserva :\n";
    for (const std::string& rischio : rischi) testo += " - " + rischio + "\n";
    testo += "\nSalvando, il file di prima resta con il nome " +
             NomeDellOriginale(stato_.folder, NomeFile) + ".\n";
  }
  return stato_.player.Ask({kAttenzione, testo + "SALVARE LE MODIFICHE ?",
                            MessageBox::Icon::Exclamation, MessageBox::Buttons::YesNoCancel});
}

void FrmGenVisualizzaRtf::Salva(bool conservaIlPrecedente) {
  fallito_ = true;
  const std::string bytes =
      WriteRtf(nuovo_ ? SenzaAvviso(RichTextBox1.Document()) : RichTextBox1.Document());
  try {
    ReadRtf(bytes);  // what would not open again is not saved
  } catch (RuntimeFailure& failure) {
    throw failure.AtFile(NomeFile);
  }
  if (conservaIlPrecedente)
    stato_.folder.Replace(NomeDellOriginale(stato_.folder, NomeFile), stato_.folder.Read(NomeFile));
  stato_.folder.Replace(NomeFile, bytes);
  fallito_ = false;
}

}  // namespace orm
