#include "cases/esl/form_services.h"

#include <algorithm>

#include "runtime/numbers.h"
#include "tariff/law/tariff_tables.h"

namespace orm {
namespace {

// The codes of a string, each between two marks: "+m+o1+".
bool Nominata(const std::string& stringa, std::string_view codice) {
  return ("+" + stringa + "+").find("+" + std::string(codice) + "+") != std::string::npos;
}

}  // namespace

FrmEslPrestazioni::FrmEslPrestazioni(std::string nome, std::string titolo, std::string passo,
                                     const LottoEsl& lotto, std::string& stringa,
                                     std::span<const ServizioEsl> tabella,
                                     std::span<const char* const> didascalie)
    : Form(std::move(nome), std::move(titolo), std::move(passo)),
      colonna_(ColonnaTabelle2001(lotto.Classe, lotto.Categoria)),
      stringa_(stringa),
      tabella_(tabella) {
  // All services are the default.
  for (std::size_t i = 0; i < tabella.size(); ++i) {
    CheckBox& check = servizi.emplace_back(*this, std::string(tabella[i].codice), didascalie[i]);
    check.SetValue(stringa.empty() || Nominata(stringa, tabella[i].codice));
  }
  const bool progetto = lotto.ImportoProgettazione > 0;
  for (Frame* frame : {&fraPreliminare, &fraDefinitivo, &fraEsecutivo}) frame->SetVisible(progetto);
  fraDirezione.SetVisible(lotto.ImportoDirezioneLavori > 0);
  Command1.onPress = [this] { Conferma(); };
}

std::vector<Layout> FrmEslPrestazioni::ChecksOf(FaseEsl fase) {
  std::vector<Layout> checks;
  for (std::size_t i = 0; i < tabella_.size(); ++i) {
    const ServizioEsl& servizio = tabella_[i];
    if (servizio.fase != fase) continue;
    std::optional<double> aliquota;
    if (colonna_) aliquota = servizio.aliquote[*colonna_];
    checks.push_back(
        aliquote.Riga(servizi[i], aliquota,
                      {&Casella(servizio.scelta), servizio.codice == "l4" ? addetti_ : nullptr}));
  }
  return checks;
}

CheckBox& FrmEslPrestazioni::Casella(std::string_view codice) {
  return *std::ranges::find(servizi, codice, &CheckBox::Name);
}

std::vector<Layout> FrmEslPrestazioni::GruppiProgetto() {
  return {Group(fraPreliminare, ChecksOf(FaseEsl::Preliminare)),
          Group(fraDefinitivo, ChecksOf(FaseEsl::Definitivo))};
}

Layout FrmEslPrestazioni::GruppiFinali(std::vector<Layout> ancoraDirezione) {
  std::vector<Layout> direzione = ChecksOf(FaseEsl::Direzione);
  for (Layout& parte : ancoraDirezione) direzione.push_back(std::move(parte));
  return Column({Group(fraEsecutivo, ChecksOf(FaseEsl::Esecutivo)),
                 Group(fraDirezione, std::move(direzione))});
}

// Checks of a hidden frame count as they stand.
void FrmEslPrestazioni::Conferma() {
  stringa_.clear();
  for (std::size_t i = 0; i < tabella_.size(); ++i)
    if (servizi[i].Value())
      stringa_ += (stringa_.empty() ? "" : "+") + std::string(tabella_[i].codice);
  Esci(Uscita::Conferma);
}

FrmEslPrestazioniBase::FrmEslPrestazioniBase(LottoEsl& lotto)
    : FrmEslPrestazioni("frmESL_PrestazioniBase", "PRESTAZIONI DI TABELLA B EFFETTUATE",
                        "prestazioni di tabella B", lotto, lotto.PrestazioniBase, kTabellaBEsl,
                        kDidascalieBase) {
  SetContent(
      Column({Column(GruppiProgetto()), GruppiFinali({}), aliquote.Piede(), Buttons({Command1})}));
  aliquote.Segui();
}

FrmEslPrestazioniIntegrative::FrmEslPrestazioniIntegrative(LottoEsl& lotto)
    : FrmEslPrestazioni("frmESL_PrestazioniIntegrative", "PRESTAZIONI DI TABELLA B1 EFFETTUATE",
                        "prestazioni di tabella B1", lotto, lotto.PrestazioniIntegrative,
                        kTabellaB1Esl, kDidascalieIntegrative) {
  addetti_ = &numeroaddetti;
  // One column of seventeen services would be higher than the least screen.
  SetContent(Column({Row(GruppiProgetto()), GruppiFinali({Fields({numeroaddetti})}),
                     aliquote.Piede(), Buttons({Command1})}));
  CheckBox& l4 = servizi.back();
  numeroaddetti.SetValue(lotto.NumeroAddetti);
  numeroaddetti.SetVisible(l4.Value());
  l4.onChange = [this, &l4] {
    numeroaddetti.SetVisible(l4.Value());
    if (!l4.Value()) numeroaddetti.SetValue(0);
  };
  aliquote.Segui();
  Command1.onPress = [this, &lotto] {
    lotto.NumeroAddetti = CheckedInt16(numeroaddetti.Value());
    Conferma();
  };
}

}  // namespace orm
