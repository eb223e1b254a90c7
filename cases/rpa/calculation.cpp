// The fee of surveys of lands: by the hour, and above ten hectares by hectare and parcel as well.
#include "cases/rpa/data.h"
#include "cases/rpa/rpa.h"
#include "runtime/numbers.h"
#include "tariff/explanations.h"
#include "tariff/law/table_hours.h"
#include "tariff/money.h"
#include "tariff/parcella.h"
#include "tariff/unit_rate.h"

namespace orm {
namespace {

constexpr const char* kParticella =
    "Artt. 33 e 34 L. 143/1949, D.M. 11-6-1987: tariffa di una particella con confini e colture";
constexpr const char* kVacazione = "Art. 4 L. 143/1949, D.M. 3-9-1997 n. 417: vacazione di un'ora";

std::string VoceTerreno(const TerrenoRpa& t) {
  return std::string("Art. 33 L. 143/1949, D.M. 11-6-1987: tariffa di un ettaro, terreni ") +
         kTerreniRpa[static_cast<std::size_t>(t.Terreno - 1)] + " " +
         kGiacitureRpa[static_cast<std::size_t>(t.Giacitura - 1)] + ", scala " +
         kScaleRpa[static_cast<std::size_t>(t.Scala - 1)];
}

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
  void CalcolaQuantita(const std::string& titolo, double quantita, double lire, const char* voce);
  void CalcolaSeCe(const char* titolo, double quantita, double lire, const char* voce) {
    if (quantita != 0) CalcolaQuantita(titolo, quantita, lire, voce);
  }

  const DatiRpa& d;
  Conto EttariComplessivi;
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
    SpiegaDato("ESTENSIONE [ettari]", t.Ettari);
    EttariComplessivi += t.Ettari;
  }
  uscita.Text("Estensione complessiva ettari ").Bare(EttariComplessivi).EndLine();
  spiegazioni.Riga(uscita.Contents(), [&]() -> Catena {
    Passaggio somma{"Somma delle estensioni",
                    EttariComplessivi.Semplice() ? "" : EttariComplessivi.Testo(),
                    EttariComplessivi.Valore(), "ettari"};
    somma.cifra = CifraNuda(EttariComplessivi);
    return {std::move(somma)};
  });
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
    spiegazioni.Riga(uscita.Contents(), []() -> Catena {
      Passaggio limite{
          "Art. 34 L. 143/1949: fino a questa estensione, compresa, si pagano le sole ore", "",
          kEttariAVacazione, "ettari"};
      limite.cifra = CifraNuda(kEttariAVacazione);
      return {std::move(limite)};
    });
    return;
  }
  for (const TerrenoRpa& t : d.Terreni)
    CalcolaQuantita(Titolo(t), t.Ettari, t.Tariffa(), VoceTerreno(t).c_str());
  CalcolaSeCe("PARTICELLE INFERIORI A 500 mq", d.ParticellePiccole, kTariffaParticellaPiccola,
              kParticella);
  CalcolaSeCe("PARTICELLE OLTRE 500 mq", d.ParticelleGrandi, kTariffaParticellaGrande, kParticella);
}

void NotaRpa::CalcolaOre() {
  CalcolaSeCe(kOreRpa[0], d.OreProfessionista, kVacazioneProfessionista, kVacazione);
  CalcolaSeCe(kOreRpa[1], d.OreAiutoIscritto, kVacazioneAiutoIscritto, kVacazione);
  CalcolaSeCe(kOreRpa[2], d.OreAiutoConcetto, kVacazioneAiutoDiConcetto, kVacazione);
}

// `voce`: where the law has the rate.
void NotaRpa::CalcolaQuantita(const std::string& titolo, double quantita, double lire,
                              const char* voce) {
  const auto [tariffa, testo] = CifraInValuta(lire, ModoLire);
  const Conto onorario = Conto(quantita) * tariffa;
  StampaVoce(titolo, FormattaCopia(quantita, 5) + " x " + testo, onorario, [&]() -> Catena {
    return {PassoTariffa(voce, lire), PassoOnorario("Quantità dei dati per tariffa", onorario)};
  });
}

}  // namespace

Parcella CalcoloRpa(Parcella parcella, const DatiRpa& dati, double& totale) {
  NotaRpa nota(std::move(parcella), dati);
  nota.ApriParcella("per le prestazioni di rilievo plano-altimetrico relative a :");
  nota.StampaDati();
  nota.CalcolaTerreni();
  nota.CalcolaOre();
  totale = nota.TotaleGenerale;
  nota.ChiudiParcella(nota.TotaleGenerale, 0);
  return nota;
}

}  // namespace orm
