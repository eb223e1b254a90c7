#include "structures/sections/form_bending_circular.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string>

#include "structures/sections/drawing_circular.h"

namespace orm {

struct FormaC {
  bool anulare;
  double raggioInterno;  // cm, of the example
  struct Riga {
    const char* ferri;
    double distanza;  // radius of a ring, distance of a group from the upper edge
  };
  std::array<Riga, 2> anelli, gruppi;
};

namespace {

constexpr std::array<FormaC, 2> kForme = {{
    {false, 0, {{{"10D16", 25}, {"0", 0}}}, {{{"1D20", 3}, {"1D20", 57}}}},
    {true, 20, {{{"10D16", 25}, {"5D18", 23}}}, {{{"1D20", 3}, {"1D20", 57}}}},
}};
constexpr double kMomentoEsempio = 15000, kRaggioEsempio = 30;

constexpr NoteFlessione kNoteCircolari{
    "LA BRENTOLI VI DA' IL BENVENUTO\nE VI AUGURA BUON LAVORO.\n\n"
    "E' NECESSARIO SCEGLIERE PER PRIMA COSA IL TIPO DI SEZIONE DA VERIFICARE",
    "Tensioni di COMPRESSIONE  --- NEGATIVE\nTensioni di TRAZIONE      --- POSITIVE",
    "\n\n\nLo sfondo giallo indica che la sezione non è verificata", true};

std::string Motivo(EsitoC esito) {
  const std::string inizio = "  DATI NON ACCETTABILI !\n";
  switch (esito) {
    case EsitoC::GeometriaErrata:
      return inizio + "RIVERIFICARE LA GEOMETRIA";
    case EsitoC::SenzaArmatura:
      return inizio + "  MANCANO LE ARMATURE    ";
    case EsitoC::ArmaturaErrata:
      return inizio + " RIVERIFICARE LE ARMATURE";
    case EsitoC::Fatto:
      break;
  }
  return {};
}

}  // namespace

FrmVerFlessC1::FrmVerFlessC1(RunState& stato)
    : FormFlessione("frmVER_FLESS_C1",
                    "VERIFICA a FLESSIONE SEMPLICE di SEZIONI in C.A. : Circolari ed Anulari "
                    "( metodo \"n\" )",
                    stato, kNoteCircolari, {"Circolare", "Anulare"}) {
  Disponi({CD_02, CD_03},
          {Group(fraDistribuita, {anelli.Contents()}), Group(fraConcentrata, {gruppi.Contents()})});
}

void FrmVerFlessC1::ScegliForma(std::size_t forma) {
  forma_ = &kForme[forma];
  CD_03.SetVisible(forma_->anulare);
  DisegnaSchemaC(Lavagna, forma_->anulare);
  ScriviDati();
}

// The example of the shape.
void FrmVerFlessC1::ScriviDati() {
  ScriviEsempio(kMomentoEsempio);
  CD_02.SetValue(kRaggioEsempio);
  CD_03.SetValue(forma_->raggioInterno);
  for (std::size_t i = 0; i < forma_->anelli.size(); ++i) {
    anelli.Scrivi(i, forma_->anelli[i].ferri, forma_->anelli[i].distanza);
    gruppi.Scrivi(i, forma_->gruppi[i].ferri, forma_->gruppi[i].distanza);
  }
}

// Radii become diameters.
DatiCircolare FrmVerFlessC1::LeggiDati() const {
  const auto area = [](const PannelloArmature& p, std::size_t i) {
    return p.CasellaFerri[i].Area();
  };
  return {.D = 2 * CD_02.Value(),
          .Di = forma_->anulare ? 2 * CD_03.Value() : 0,
          .Ad1 = area(anelli, 0),
          .Dd1 = 2 * anelli.Distanza[0].Value(),
          .Ad2 = area(anelli, 1),
          .Dd2 = 2 * anelli.Distanza[1].Value(),
          .Ac1 = area(gruppi, 0),
          .d1 = gruppi.Distanza[0].Value(),
          .Ac2 = area(gruppi, 1),
          .d2 = gruppi.Distanza[1].Value(),
          .M = Momento()};
}

void FrmVerFlessC1::Calcola() {
  if (forma_ == nullptr || gruppo.Chosen() < 0) {
    stato_.player.Ask({" !!  ATTENZIONE  !!  ", "  SCEGLIERE IL TIPO DI SEZIONE  ",
                       MessageBox::Icon::Exclamation, MessageBox::Buttons::Ok});
    Label_NOTA.SetText(kNoteCircolari.benvenuto);
    return;
  }
  if (SenzaMomento()) return;
  const DatiCircolare dati = LeggiDati();
  VerificaSezioneCircolare(dati, tensioni_);
  if (tensioni_.esito != EsitoC::Fatto) return Avvisa(Motivo(tensioni_.esito));
  const TensioniAmmissibili ammesse = Ammesse();
  // Here compressed steel is looked at too.
  const bool verificata = std::fabs(tensioni_.clsSup) < ammesse.cls &&
                          std::fabs(tensioni_.clsInf) < ammesse.cls &&
                          std::fabs(tensioni_.massimo) < ammesse.acciaio &&
                          std::fabs(tensioni_.minimo) < ammesse.acciaio;
  Mostra(tensioni_, verificata, SpiegaSezioneC(dati, tensioni_, ammesse));
  const auto ferri = [this](std::size_t i) { return BarGroups(anelli.CasellaFerri[i].Text()); };
  DisegnaSezioneC(Lavagna, dati, tensioni_, {ferri(0), ferri(1)}, ammesse, verificata);
}

void MostraVerFlessC1(RunState& stato) { FrmVerFlessC1(stato).Presenta(); }

}  // namespace orm
