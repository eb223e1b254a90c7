// The fee of surveys of lands: by the hour, and above ten hectares by hectare and parcel as well.
#include "cases/rpa/data.h"
#include "cases/rpa/rpa.h"
#include "runtime/numbers.h"
#include "tariff/law/table_hours.h"
#include "tariff/money.h"
#include "tariff/parcella.h"
#include "tariff/unit_rate.h"

namespace orm {
namespace {

class NotaRpa : public Parcella {
 public:
  NotaRpa(Parcella parcella, const DatiRpa& dati) : Parcella(std::move(parcella)), d(dati) {}

  void StampaDati();
  void CalcolaTerreni();
  void CalcolaOre();

 private:
  static std::string Titolo(const TerrenoRpa& t) {
    return std::string("TERRENI ") + kTerreniRpa[static_cast<std::size_t>(t.Terreno - 1)];
  }
  bool SoloAVacazione() const;
  void CalcolaQuantita(const std::string& titolo, double quantita, double lire);
  void CalcolaSeCe(const char* titolo, double quantita, double lire) {
    if (quantita != 0) CalcolaQuantita(titolo, quantita, lire);
  }

  const DatiRpa& d;
  double EttariComplessivi = 0;
};

void NotaRpa::StampaDati() {
  uscita.Line(kRigaDatiParcella);
  for (const TerrenoRpa& t : d.Terreni) {
    uscita.Line(Numero() + " " + Titolo(t));
    uscita.Tab(5)
        .Text(" - ")
        .Text(kGiacitureRpa[static_cast<std::size_t>(t.Giacitura - 1)])
        .Text(" ")
        .Text(kScaleRpa[static_cast<std::size_t>(t.Scala - 1)])
        .Tab(kColonnaLavori)
        .Bare(t.Ettari)
        .EndLine();
    EttariComplessivi += t.Ettari;
  }
  uscita.Text("Estensione complessiva ettari ").Bare(EttariComplessivi).EndLine();
}

// The sum counts as it is printed, without the tail of its binary fractions.
bool NotaRpa::SoloAVacazione() const {
  return ParseNumber(NumberText(EttariComplessivi)).value_or(0) <= kEttariAVacazione;
}

void NotaRpa::CalcolaTerreni() {
  uscita.Line(kRigaOnorariCompensi);
  progressivo = 0;
  if (SoloAVacazione()) {
    uscita.Line("Estensione fino a 10 ettari : compenso a vacazione ( art. 34 )");
    return;
  }
  for (const TerrenoRpa& t : d.Terreni) CalcolaQuantita(Titolo(t), t.Ettari, t.Tariffa());
  CalcolaSeCe("PARTICELLE INFERIORI A 500 mq", d.ParticellePiccole, kTariffaParticellaPiccola);
  CalcolaSeCe("PARTICELLE OLTRE 500 mq", d.ParticelleGrandi, kTariffaParticellaGrande);
}

void NotaRpa::CalcolaOre() {
  CalcolaSeCe(kOreRpa[0], d.OreProfessionista, kVacazioneProfessionista);
  CalcolaSeCe(kOreRpa[1], d.OreAiutoIscritto, kVacazioneAiutoIscritto);
  CalcolaSeCe(kOreRpa[2], d.OreAiutoConcetto, kVacazioneAiutoDiConcetto);
}

void NotaRpa::CalcolaQuantita(const std::string& titolo, double quantita, double lire) {
  const auto [tariffa, testo] = CifraInValuta(lire, ModoLire);
  StampaVoce(titolo, FormattaCopia(quantita, 5) + " x " + testo, quantita * tariffa);
}

}  // namespace

Parcella CalcoloRpa(Parcella parcella, const DatiRpa& dati, double& totale) {
  NotaRpa nota(std::move(parcella), dati);
  nota.ApriParcella("per le prestazioni di rilievo plano-altimetrico relative a :");
  nota.StampaDati();
  nota.CalcolaTerreni();
  nota.CalcolaOre();
  totale = nota.TotaleGenerale;
  nota.ChiudiParcella(totale, 0);
  return nota;
}

}  // namespace orm
