#include "cases/cos/form.h"

#include <utility>

#include "dialogs/message_boxes.h"
#include "runtime/numbers.h"

namespace orm {
namespace {

const NumberLimits kVariazione{.least = -100, .most = 100, .decimals = 5, .unit = "%"};

constexpr const char* kAvvertenza =
    "Dare l'importo delle strutture collaudate nella corrispondente casella del periodo "
    "tariffario\n"
    "in cui il collaudo è avvenuto.\n"
    "Nel caso, è possibile suddividere l'importo totale in più periodi tariffari.";

std::string Numero(std::size_t i) { return NumberText(static_cast<double>(i + 1)); }

template <std::size_t... i>
std::array<ImportoBox, sizeof...(i)> Importi(Form& form, const RunState& stato,
                                             const TestataCos& testata, std::index_sequence<i...>) {
  return {{{form, stato, "ImportoCS" + Numero(i), testata.NomePeriodo[i]}...}};
}

template <std::size_t... i>
std::array<FloatBox, sizeof...(i)> Variazioni(Form& form, const TestataCos& testata,
                                              std::index_sequence<i...>) {
  return {{{form, "cdMaggiorazione" + Numero(i), testata.NomeVariazione[i], kVariazione}...}};
}

}  // namespace

FrmCosDati::FrmCosDati(RunState& stato, const TestataCos& testata, const DatiCos& dati)
    : Form("frmCOS_Dati", "COLLAUDO STATICO"),
      ImportoCS(dati.ImportoCS),
      Maggiorazione(dati.Maggiorazione),
      Frame1(*this, "Frame1", "IMPORTO SUDDIVISO NEI PERIODI TARIFFARI"),
      importi(Importi(*this, stato, testata, std::make_index_sequence<kPeriodiCos>())),
      Image1(*this, "Image1", Image::Subject::Euro),
      Frame2(*this, "Frame2", "MAGGIORAZIONI E RIDUZIONI in %"),
      cdMaggiorazione(Variazioni(*this, testata, std::make_index_sequence<kVariazioniCos>())),
      cmdAvvertenza(*this, "cmdAvvertenza", "Avvertenza"),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default) {
  std::vector<Layout> righeImporti, righeVariazioni;
  for (ImportoBox& importo : importi) {
    righeImporti.emplace_back(importo.cd);
    righeImporti.emplace_back(importo.ci);
  }
  for (FloatBox& variazione : cdMaggiorazione) righeVariazioni.emplace_back(variazione);
  SetContent(Column({Group(Frame1, {Row({Fields(std::move(righeImporti)), Image1})}),
                     Group(Frame2, {Fields(std::move(righeVariazioni))}),
                     Buttons({cmdAvvertenza, Command1})}));
  Image1.SetVisible(!stato.ModoLire);
  for (std::size_t i = 0; i < kPeriodiCos; ++i) importi[i].SetValue(ImportoCS[i]);
  for (std::size_t i = 0; i < kVariazioniCos; ++i) cdMaggiorazione[i].SetValue(Maggiorazione[i]);
  cmdAvvertenza.onPress = [&stato] {
    stato.player.Ask(
        {"AVVERTENZA ", kAvvertenza, MessageBox::Icon::Information, MessageBox::Buttons::Ok});
  };
  Command1.onPress = [this, &stato] { Confirm(stato); };
}

void FrmCosDati::Confirm(RunState& stato) {
  double altri = 0;
  for (const ImportoBox& importo : importi) {
    if (const std::string motivo = SommaEccessiva(importo, altri); !motivo.empty()) {
      stato.player.Ask(Avviso(motivo));
      return;
    }
    altri += importo.Value();
  }
  for (std::size_t i = 0; i < kPeriodiCos; ++i) ImportoCS[i] = importi[i].Value();
  for (std::size_t i = 0; i < kVariazioniCos; ++i) Maggiorazione[i] = cdMaggiorazione[i].Value();
  Esci(Uscita::Conferma);
}

}  // namespace orm
