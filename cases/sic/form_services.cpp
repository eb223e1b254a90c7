#include "cases/sic/forms.h"
#include "runtime/numbers.h"
#include "tariff/money.h"

namespace orm {
namespace {

constexpr std::size_t kCaselleMaggiorazioni = 10;  // "SC1" shows five of them

std::string Numero(std::size_t n) { return NumberText(static_cast<double>(n)); }
std::string Percento(double valore) { return FormattaCopia(valore, 2); }

// A string of the file in its full length, whatever the file had.
std::string Completa(std::string segni, std::size_t lunghezza) {
  segni.resize(lunghezza, '0');
  return segni;
}

}  // namespace

FrmSicSpunte::FrmSicSpunte(std::string nome, std::string passo, std::string riquadro,
                           std::span<const CondizioneSic> condizioni, std::size_t caselle,
                           std::string segni)
    : Form(std::move(nome), "PARCELLA PER PRESTAZIONI SICUREZZA CANTIERI", std::move(passo)),
      Segni(Completa(std::move(segni), condizioni.size())) {
  std::vector<Layout> righe;
  for (std::size_t i = 0; i < caselle; ++i) {
    const bool offerta = i < condizioni.size();
    CheckBox& check =
        Check.emplace_back(*this, "Check" + Numero(i + 1), offerta ? condizioni[i].testo : "");
    righe.emplace_back(check);
    check.SetVisible(offerta);
    check.SetValue(offerta && Segni[i] == '1');
    check.SetEnabled(!offerta || Segni[i] != '2');
  }
  SetContent(Column({Group(Frame1, std::move(righe)), Buttons({Command1})}));
  Frame1.SetCaption(std::move(riquadro));
  Command1.onPress = [this] { Conferma(); };
}

void FrmSicSpunte::Conferma() {
  for (std::size_t i = 0; i < Segni.size(); ++i)
    if (Segni[i] != '2') Segni[i] = Check[i].Value() ? '1' : '0';
  Esci(Uscita::Conferma);
}

FrmSicPrestazioni::Riga::Riga(Form& form, std::size_t i)
    : Check(form, "Check" + Numero(i + 1), kPrestazioniSic[i].didascalia),
      cmd_Maggiorazioni(form, "cmd_Maggiorazioni_" + Numero(i + 1), "Maggiorazioni"),
      Txt_Maggiorazioni(form, "Txt_Maggiorazioni" + Numero(i + 1), "",
                        {.readOnly = true, .width = 4, .unit = "%", .figure = true}) {
  if (i < kCoordinatoreProgetto) return;
  const std::string n = Numero(i + 1 - kCoordinatoreProgetto);
  cmd_Incrementi.emplace(form, "cmd_Incrementi_" + n, "Incrementi");
  Txt_Incrementi.emplace(form, "Txt_Incrementi" + n, "",
                         TextOptions{.readOnly = true, .width = 4, .unit = "%", .figure = true});
}

FrmSicPrestazioni::FrmSicPrestazioni(Player& player, const VersioneSic& versione, LottoSic& lotto)
    : Form("frmSIC_Prestazioni", "SICUREZZA CANTIERI : PRESTAZIONI ", "prestazioni"),
      player_(player),
      versione_(versione),
      lotto_(lotto),
      maggiorazioni_(Completa(lotto.StringaMaggiorazioni,
                              kPrestazioniSic.size() * versione.maggiorazioni.size())),
      incrementi_(Completa(lotto.StringaIncrementi, 2 * kIncrementi)) {
  std::vector<Layout> linee;
  for (std::size_t i = 0; i < kPrestazioniSic.size(); ++i) {
    Riga& riga = righe.emplace_back(*this, i);
    std::vector<Layout> linea{riga.Check, riga.cmd_Maggiorazioni, riga.Txt_Maggiorazioni};
    if (riga.cmd_Incrementi) {
      linea.emplace_back(*riga.cmd_Incrementi);
      linea.emplace_back(*riga.Txt_Incrementi);
      riga.cmd_Incrementi->onPress = [this, i] { ChiediIncrementi(i); };
    }
    linee.push_back(Row(std::move(linea)));
    riga.Check.SetValue(i < lotto.StringaPrestazioni.size() && lotto.StringaPrestazioni[i] == '1');
    riga.Check.onChange = [this, i] { Spunta(i); };
    riga.cmd_Maggiorazioni.onPress = [this, i] { ChiediMaggiorazioni(i); };
    MostraRiga(i);
  }
  SetContent(Column({Group(Frame1, {Fields(std::move(linee))}), Buttons({Command1})}));
  Frame1.SetCaption(versione.riquadroPrestazioni);
  Command1.onPress = [this] { Conferma(); };
}

void FrmSicPrestazioni::SetHidden(const std::vector<std::string>& values) {
  maggiorazioni_ = values[0];
  incrementi_ = values[1];
  for (std::size_t i = 0; i < righe.size(); ++i) MostraRiga(i);
}

// A duty that is not done has no conditions; increments that it never offers are marked so.
void FrmSicPrestazioni::Spunta(std::size_t i) {
  if (!righe[i].Check.Value()) {
    const std::size_t n = versione_.maggiorazioni.size();
    maggiorazioni_.replace(i * n, n, n, '0');
    if (i == kCoordinatoreProgetto)
      incrementi_.replace(0, kIncrementi, versione_.SC2 ? "022" : "220");
    if (i == kCoordinatoreEsecuzione) incrementi_.replace(kIncrementi, kIncrementi, "000");
  }
  MostraRiga(i);
}

void FrmSicPrestazioni::MostraRiga(std::size_t i) {
  Riga& riga = righe[i];
  const bool fatta = riga.Check.Value();
  const std::size_t n = versione_.maggiorazioni.size();
  riga.cmd_Maggiorazioni.SetEnabled(fatta);
  riga.Txt_Maggiorazioni.SetEnabled(fatta);
  riga.Txt_Maggiorazioni.SetText(
      Percento(SommaCondizioni(versione_.maggiorazioni, maggiorazioni_.substr(i * n, n))));
  if (!riga.cmd_Incrementi) return;
  riga.cmd_Incrementi->SetEnabled(fatta);
  riga.Txt_Incrementi->SetEnabled(fatta);
  riga.Txt_Incrementi->SetText(Percento(SommaCondizioni(versione_.incrementi, Offerti(i))));
}

// The coordinator of the design can have one of the three, a different one in each version.
std::string FrmSicPrestazioni::Offerti(std::size_t i) const {
  if (i == kCoordinatoreEsecuzione) return incrementi_.substr(kIncrementi, kIncrementi);
  return versione_.SC2 ? incrementi_.substr(0, 1) + "22" : "22" + incrementi_.substr(2, 1);
}

void FrmSicPrestazioni::ChiediMaggiorazioni(std::size_t i) {
  const Drafts::Subject prestazione(player_.DraftsOfRun(), Numero(i + 1));
  const std::size_t n = versione_.maggiorazioni.size();
  const PartOfWay qui(player_.place, {righe[i].Check.Caption()});
  FrmSicSpunte form("frmSIC_Maggiorazioni", "maggiorazioni", versione_.riquadroMaggiorazioni,
                    versione_.maggiorazioni, kCaselleMaggiorazioni,
                    maggiorazioni_.substr(i * n, n));
  player_.Show(form);
  maggiorazioni_.replace(i * n, n, form.Segni);
  MostraRiga(i);
}

void FrmSicPrestazioni::ChiediIncrementi(std::size_t i) {
  const Drafts::Subject prestazione(player_.DraftsOfRun(), Numero(i + 1));
  const PartOfWay qui(player_.place, {righe[i].Check.Caption()});
  FrmSicSpunte form("frmSIC_Incrementi", "incrementi", "INCREMENTI", versione_.incrementi,
                    kIncrementi, Offerti(i));
  player_.Show(form);
  incrementi_.replace(i == kCoordinatoreProgetto ? 0 : kIncrementi, kIncrementi, form.Segni);
  MostraRiga(i);
}

void FrmSicPrestazioni::Conferma() {
  lotto_.StringaPrestazioni.clear();
  for (const Riga& riga : righe) lotto_.StringaPrestazioni += riga.Check.Value() ? '1' : '0';
  lotto_.StringaMaggiorazioni = maggiorazioni_;
  lotto_.StringaIncrementi = incrementi_;
  Esci(Uscita::Conferma);
}

}  // namespace orm
