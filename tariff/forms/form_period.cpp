#include "tariff/forms/form_period.h"

#include "runtime/numbers.h"
#include "tariff/law/tariff_tables.h"

namespace orm {

NomiPeriodi NomiDeiDecreti() {
  NomiPeriodi nomi;
  for (int i = 1; i <= kPeriodo1987; ++i)
    nomi[static_cast<std::size_t>(i - 1)] = NomePeriodoTariffarioEsteso(i);
  return nomi;
}

ElencoDecreti::ElencoDecreti(Form& form) : ComboBox(form, "Decreti", "") {
  const NomiPeriodi nomi = NomiDeiDecreti();
  SetItems({nomi.begin(), nomi.end()});
}

void ElencoDecreti::Mostra(const std::string& periodo) {
  SetIndex(periodo.size() == 1 ? periodo[0] - '1' : -1);
}

void ElencoDecreti::Prendi(std::string& periodo) const {
  if (Index() >= 0) periodo = std::string(1, static_cast<char>('1' + Index()));
}

namespace {

constexpr NomeRiga kPeriodo = {"periodo", "il periodo", "i periodi"};

std::string TogliePeriodi(const PostoRiga& posto) {
  if (posto.Nuova()) return "";
  const std::size_t quanti = posto.esistenti - posto.numero + 1;
  return "toglie " + NumberText(static_cast<double>(quanti)) +
         (quanti == 1 ? " periodo" : " periodi") + " con importi";
}

}  // namespace

TestiTariffe TestiPdlTariffe() {
  return {"frmPDL_Tariffe", "DATA DI ESECUZIONE DELLA PRESTAZIONE", "PERIODO DI VALIDITA' DEL",
          NomiDeiDecreti()};
}

FrmTariffe::FrmTariffe(RunState& stato, const TestiTariffe& testi, const PostoRiga& posto,
                       int ultimo, const std::string& periodo)
    : FormRiga(stato, testi.nome, testi.titolo, "decreto", posto, kPeriodo, Command2) {
  lblToglie.SetText(TogliePeriodi(posto));
  SetContent(Column(
      {Group(Frame1, {Option[0], Option[1], Option[2], Option[3], Option[4]}), Fondo(Command1)}));
  Frame1.SetCaption(testi.riquadro);
  for (int i = 0; i < kPeriodo1987; ++i) {
    OptionButton& opzione = Option[static_cast<std::size_t>(i)];
    opzione.SetCaption(testi.periodi[static_cast<std::size_t>(i)]);
    opzione.SetVisible(i >= ultimo);
    const bool suo = periodo == std::string(1, static_cast<char>('1' + i));
    if (i >= ultimo && (periodo_ == 0 || suo)) periodo_ = static_cast<std::int16_t>(i + 1);
  }
  tipo.Choose(periodo_ - 1);
  Command1.SetEnabled(periodo_ != 0);
  Command1.onPress = [this] { Conferma(); };
}

std::optional<std::int16_t> FrmTariffe::ChiediPeriodo() {
  if (periodo_ == 0 && posto_.Nuova()) return std::nullopt;
  if (!Chiedi() || periodo_ == 0) return std::nullopt;
  return periodo_;
}

void FrmTariffe::Conferma() {
  if (Rifiuta(posto_.rifiuto)) return;
  periodo_ = static_cast<std::int16_t>(tipo.Chosen() + 1);
  Esci(Uscita::Conferma);
}

}  // namespace orm
