#include "structures/loads/form_permanent.h"

#include <utility>
#include <vector>

#include "structures/loads/loads.h"

namespace orm {
namespace {

constexpr double kPesoRipartibile = 150;  // kg/mq of wall; a heavier one is no spread load

}  // namespace

FrmStruttureCarichiPermanenti::FrmStruttureCarichiPermanenti()
    : FormCarichi("frmSTRUTTURE_CarichiPermanenti", "Carichi permanenti") {
  for (std::size_t i = 0; i < kPannelli.size(); ++i) pannelli.emplace_back(*this, i, kPannelli[i]);
  cdTotale.SetReadOnly(true);
  std::vector<Layout> parts{Elenco()};
  for (std::size_t i = 0; i < pannelli.size(); ++i) parts.push_back(Specifica(i));
  SetContent(Column(std::move(parts)));
  TieEvents();
  Aggiorna();
}

Layout FrmStruttureCarichiPermanenti::Elenco() {
  std::vector<Layout> lines;
  for (PannelloCarico& p : pannelli) lines.push_back(Row({p.cdCarico, p.cmdSpecifica}));
  lines.emplace_back(cdTotale);
  return Group(fraSovraccarichi,
               {Fields(std::move(lines)), Buttons({OKButton, cmdCalcola, cmdAzzera})});
}

Layout FrmStruttureCarichiPermanenti::Specifica(std::size_t pannello) {
  PannelloCarico& p = pannelli[pannello];
  return Group(p.frmSpecificaCarichi,
               {Contenuto(pannello), Fields({p.cdRisultato}), Buttons({p.Commando, p.cmdAzzera})});
}

Layout FrmStruttureCarichiPermanenti::Contenuto(std::size_t pannello) {
  switch (pannello) {
    case Pavimentazione:
      return optPavimento.Contents();
    case Tramezzi:
      return Column({optTramezzi[0], Fields({cdAreaSolaio, cdLunghezza, cdAltezza, cdPesoTramezzo}),
                     lblEsempioTramezzi, lblNotaTramezzi, Row({optTramezzi[1], cdAltroTramezzo})});
    case Neve:
      return Column({Row({optZona[0], optZona[1]}), Fields({cdQuota, cdInclinazione}), lblNotaNeve,
                     lblFavoreSicurezza});
    case Impermeabilizzazione:
      return optImper.Contents();
    case Manto:
      return optManto.Contents();
    case Massetto:
      return Fields({cdSpessore});
    default:
      return optSoffitto.Contents();
  }
}

void FrmStruttureCarichiPermanenti::TieEvents() {
  const auto aggiorna = [this] { Aggiorna(); };
  for (SceltaCarico* scelta : {&optPavimento, &optImper, &optManto, &optSoffitto})
    scelta->QuandoCambia(aggiorna);
  for (OptionButton& opt : optTramezzi) opt.onChange = aggiorna;
  for (OptionButton& opt : optZona) opt.onChange = aggiorna;
  for (FloatBox* campo : {&cdAreaSolaio, &cdLunghezza, &cdAltezza, &cdPesoTramezzo,
                          &cdAltroTramezzo, &cdQuota, &cdInclinazione, &cdSpessore})
    campo->onChange = aggiorna;
  for (std::size_t i = 0; i < pannelli.size(); ++i) {
    PannelloCarico& p = pannelli[i];
    p.cmdSpecifica.onPress = [this, &p] { Apri(p); };
    p.cmdAzzera.onPress = [this, i] { Azzera(i); };
    p.Commando.onPress = [this] {
      Fissa();
      Torna();
    };
  }
  cmdCalcola.onPress = aggiorna;
  cmdAzzera.onPress = [this] {
    for (std::size_t i = 0; i < pannelli.size(); ++i) Azzera(i);
  };
}

void FrmStruttureCarichiPermanenti::OnOpen() {
  FormCarichi::OnOpen();
  MostraElenco();
}

// What was confirmed in the other panels stays.
void FrmStruttureCarichiPermanenti::OnEscape() {
  if (aperto_ == nullptr) return OnWindowClose();
  Ripristina();
  Torna();
}

void FrmStruttureCarichiPermanenti::Apri(PannelloCarico& pannello) {
  aperto_ = &pannello;
  fraSovraccarichi.SetVisible(false);
  pannello.frmSpecificaCarichi.SetVisible(true);
  if (Control* primo = FirstFocus()) MoveFocus(*primo);
}

void FrmStruttureCarichiPermanenti::Torna() {
  PannelloCarico& pannello = *aperto_;
  MostraElenco();
  MoveFocus(pannello.cmdSpecifica);
}

void FrmStruttureCarichiPermanenti::MostraElenco() {
  aperto_ = nullptr;
  for (PannelloCarico& p : pannelli) p.frmSpecificaCarichi.SetVisible(false);
  fraSovraccarichi.SetVisible(true);
}

// Takes the choice back; what was typed beside it stays for another time.
void FrmStruttureCarichiPermanenti::Azzera(std::size_t pannello) {
  gruppi[pannello].Choose(-1);
  if (pannello == Massetto) cdSpessore.SetValue(0);
}

void FrmStruttureCarichiPermanenti::Aggiorna() {
  for (FloatBox* campo : {&cdAreaSolaio, &cdLunghezza, &cdAltezza, &cdPesoTramezzo})
    campo->SetEnabled(optTramezzi[0].Value());
  cdAltroTramezzo.SetEnabled(optTramezzi[1].Value());
  lblNotaTramezzi.SetStyle(cdPesoTramezzo.Value() > kPesoRipartibile ? Label::Style::Warning
                                                                     : Label::Style::Note);
  for (std::size_t i = 0; i < pannelli.size(); ++i) {
    pannelli[i].cdRisultato.SetValue(Risultato(i));
    pannelli[i].cdCarico.SetValue(Risultato(i));
  }
  cdTotale.SetValue(Totale());
}

double FrmStruttureCarichiPermanenti::Risultato(std::size_t pannello) const {
  switch (pannello) {
    case Pavimentazione:
      return optPavimento.Carico();
    case Tramezzi:
      if (optTramezzi[1].Value()) return cdAltroTramezzo.Value();
      if (!optTramezzi[0].Value()) return 0;
      return CaricoTramezzi(cdAreaSolaio.Value(), cdLunghezza.Value(), cdAltezza.Value(),
                            cdPesoTramezzo.Value());
    case Neve: {
      const int zona = gruppi[Neve].Chosen();
      if (zona < 0) return 0;
      return CaricoNeve(kZoneNeve[static_cast<std::size_t>(zona)].carico, cdQuota.Value(),
                        cdInclinazione.Value());
    }
    case Impermeabilizzazione:
      return optImper.Carico();
    case Manto:
      return optManto.Carico();
    case Massetto:
      return cdSpessore.Value() * kPesoMassettoPerCm;
    default:
      return optSoffitto.Carico();
  }
}

double FrmStruttureCarichiPermanenti::Totale() const {
  double totale = 0;
  for (std::size_t i = 0; i < pannelli.size(); ++i) totale += Risultato(i);
  return totale;
}

FrmStruttureCarichiPermanenti& CarichiPermanenti(RunState& stato) {
  return stato.memoria.The<FrmStruttureCarichiPermanenti>();
}

}  // namespace orm
