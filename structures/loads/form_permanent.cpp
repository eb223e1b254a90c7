#include "structures/loads/form_permanent.h"

#include <utility>
#include <vector>

#include "structures/loads/loads.h"
#include "structures/numbered_controls.h"

namespace orm {
namespace {

constexpr const char* kKgMq = "Kg/mq.";
constexpr double kPesoRipartibile = 150;  // kg/mq of wall; a heavier one is no spread load
constexpr std::array kNomi = {"PAVIMENTAZIONE comprensiva di letto di malta o sottofondo",
                              "TRAMEZZI",
                              "NEVE",
                              "IMPERMEABILIZZAZIONE",
                              "MANTI DI COPERTURA",
                              "MASSETTO PENDENZE",
                              "SOFFITTO"};

NumberLimits Misura(double massimo, const char* unita) {
  return {.most = massimo, .decimals = 2, .unit = unita};
}

NumberLimits LimitiRisultato() { return {.most = 999999999.99, .decimals = 2, .unit = kKgMq}; }

}  // namespace

PannelloCarico::PannelloCarico(Form& form, std::size_t indice, const char* nome)
    : cdCarico(form, NomeIndicizzato("cdCarico", indice), nome, LimitiRisultato()),
      cmdSpecifica(form, NomeIndicizzato("cmdSpecifica", indice), "Specifica..."),
      frmSpecificaCarichi(form, NomeIndicizzato("frmSpecificaCarichi", indice), nome),
      cdRisultato(form, NomeIndicizzato("cdRisultato", indice), "Carico", LimitiRisultato()),
      cmdAzzera(form, NomeIndicizzato("cmdAzzera", indice), "&Azzera"),
      Commando(form, NomeIndicizzato("Commando", indice), "&O.K.") {
  cdCarico.SetReadOnly(true);
  cdRisultato.SetReadOnly(true);
  frmSpecificaCarichi.SetVisible(false);
}

FrmStruttureCarichiPermanenti::FrmStruttureCarichiPermanenti()
    : FrmCarichi("frmSTRUTTURE_CarichiPermanenti", "Carichi permanenti"),
      fraSovraccarichi(*this, "fraSovraccarichi", "SOVRACCARICHI RIPARTITI  [Kg/mq]"),
      cdTotale(*this, "cdTotale", "TOTALE", LimitiRisultato()),
      cmdCalcola(*this, "cmdCalcola", "&CALCOLA"),
      OKButton(*this, "OKButton", "&O.K.", Button::Role::Default),
      optPavimento(*this, "optPavimento", kVociPavimento, gruppi[Pavimentazione], kKgMq),
      optImper(*this, "optImper", kVociImpermeabilizzazione, gruppi[Impermeabilizzazione], kKgMq),
      optManto(*this, "optManto", kVociManto, gruppi[Manto], kKgMq),
      optSoffitto(*this, "optSoffitto", kVociSoffitto, gruppi[Soffitto], kKgMq),
      optTramezzi{{{*this, "optTramezzi(0)", "Tramezzi di peso < 150 Kg/mq", gruppi[Tramezzi]},
                   {*this, "optTramezzi(1)", "Altro tipo di carico", gruppi[Tramezzi]}}},
      cdAreaSolaio(*this, "cdAreaSolaio", "Area del solaio", Misura(9999.99, "mq.")),
      cdLunghezza(*this, "cdLunghezza", "Lunghezza Tramezzatura ", Misura(9999.99, "ml.")),
      cdAltezza(*this, "cdAltezza", "Altezza Tramezzo ", Misura(99.99, "ml.")),
      cdPesoTramezzo(*this, "cdPesoTramezzo", "Peso Tramezzo compreso doppio intonaco",
                     Misura(9999.99, kKgMq)),
      cdAltroTramezzo(*this, "cdAltroTramezzo", "", Misura(99999.99, kKgMq)),
      lblEsempioTramezzi(*this, "lblEsempioTramezzi",
                         "Ad esempio tramezzo di forati da 8   : 110 Kg/mq.                    "
                         "tramezzo di forati da 12 : 130 Kg/mq",
                         Label::Style::Note),
      lblNotaTramezzi(*this, "lblNotaTramezzi",
                      "La ripartizione dei tramezzi è accettabile solo per peso a mq  inferiore a "
                      "150 Kg/mq.",
                      Label::Style::Note),
      optZona{{{*this, "optZona(0)", kZoneNeve[0].nome, gruppi[Neve]},
               {*this, "optZona(1)", kZoneNeve[1].nome, gruppi[Neve]}}},
      cdQuota(*this, "cdQuota", "Altezza località sul livello del mare ", Misura(4999.99, "m.")),
      cdInclinazione(*this, "cdInclinazione", "Inclinazione della falda", Misura(90, "gradi")),
      lblNotaNeve(*this, "lblNotaNeve",
                  "Si ricorda che questo tipo di sovraccarico non va cumulato sulle medesime "
                  "superfici con i carichi accidentali prescritti dalle norme.",
                  Label::Style::Note),
      lblFavoreSicurezza(*this, "lblFavoreSicurezza",
                         "Naturalmente, a favore della sicurezza, occorre fra adottare il più "
                         "gravoso fra il carico da neve e quello accidentale.",
                         Label::Style::Note),
      cdSpessore(*this, "cdSpessore", "Spessore cm.", Misura(999.99, "")) {
  for (std::size_t i = 0; i < kNomi.size(); ++i) pannelli.emplace_back(*this, i, kNomi[i]);
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
  return Group(fraSovraccarichi, {Fields(std::move(lines)), Buttons({cmdCalcola, OKButton})});
}

Layout FrmStruttureCarichiPermanenti::Specifica(std::size_t pannello) {
  PannelloCarico& p = pannelli[pannello];
  return Group(p.frmSpecificaCarichi,
               {Contenuto(pannello), Fields({p.cdRisultato}), Buttons({p.cmdAzzera, p.Commando})});
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
    p.Commando.onPress = [this, &p] {
      MostraElenco();
      MoveFocus(p.cmdSpecifica);
    };
  }
  cmdCalcola.onPress = aggiorna;
  OKButton.onPress = [this] { Conferma(); };
}

void FrmStruttureCarichiPermanenti::OnOpen() {
  FrmCarichi::OnOpen();
  MostraElenco();
}

void FrmStruttureCarichiPermanenti::Apri(PannelloCarico& pannello) {
  fraSovraccarichi.SetVisible(false);
  pannello.frmSpecificaCarichi.SetVisible(true);
  if (Control* primo = FirstFocus()) MoveFocus(*primo);
}

void FrmStruttureCarichiPermanenti::MostraElenco() {
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
