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

constexpr const char* kCampoEttari = "ESTENSIONE [ettari]";
constexpr const char* kParticella =
    "Artt. 33 e 34 L. 143/1949, D.M. 11-6-1987: particelle con confini e colture ";
constexpr const char* kVacazione =
    "Art. 4 L. 143/1949, D.M. 3-9-1997 n. 417: vacazione di un'ora, ";

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
  // What is paid by the piece: its entry in the forms, and where the law has the rate.
  struct Quantita {
    const char* campo;
    double quante;
    const char* unita;
    std::string voce;
  };
  void CalcolaQuantita(const std::string& titolo, const Quantita& quantita, double lire);
  void CalcolaParticelle(const char* titolo, const char* campo, double quante, double lire);
  void CalcolaOre(const char* chi, double quante, double lire);

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
    SpiegaDato(kCampoEttari, t.Ettari, "ettari");
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
    CalcolaQuantita(Titolo(t), {kCampoEttari, t.Ettari, "ettari", VoceTerreno(t)}, t.Tariffa());
  CalcolaParticelle("PARTICELLE INFERIORI A 500 mq", "INFERIORI A 500 mq", d.ParticellePiccole,
                    kTariffaParticellaPiccola);
  CalcolaParticelle("PARTICELLE OLTRE 500 mq", "OLTRE 500 mq", d.ParticelleGrandi,
                    kTariffaParticellaGrande);
}

void NotaRpa::CalcolaParticelle(const char* titolo, const char* campo, double quante, double lire) {
  if (quante != 0)
    CalcolaQuantita(
        titolo,
        {campo, quante, "particelle", kParticella + std::string(campo) + ", tariffa di ognuna"},
        lire);
}

void NotaRpa::CalcolaOre() {
  CalcolaOre(kOreRpa[0], d.OreProfessionista, kVacazioneProfessionista);
  CalcolaOre(kOreRpa[1], d.OreAiutoIscritto, kVacazioneAiutoIscritto);
  CalcolaOre(kOreRpa[2], d.OreAiutoConcetto, kVacazioneAiutoDiConcetto);
}

void NotaRpa::CalcolaOre(const char* chi, double quante, double lire) {
  if (quante != 0) CalcolaQuantita(chi, {chi, quante, "ore", kVacazione + std::string(chi)}, lire);
}

void NotaRpa::CalcolaQuantita(const std::string& titolo, const Quantita& quantita, double lire) {
  const auto [tariffa, testo] = CifraInValuta(lire, ModoLire);
  const Conto onorario = Conto(quantita.quante) * tariffa;
  StampaVoce(titolo, FormattaCopia(quantita.quante, 5) + " x " + testo, onorario, [&]() -> Catena {
    return {PassoTariffa(quantita.voce, lire),
            PassoDato(quantita.campo, quantita.quante, quantita.unita),
            PassoOnorario(std::string("Onorario: ") + quantita.unita + " per tariffa", onorario)};
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
