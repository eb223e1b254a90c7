#include "structures/sections/form_bending_circular.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <string>

#include "structures/sections/drawing_circular.h"

namespace orm {

struct FormaC {
  const char* TipoSezione;
  bool anulare;
  double raggioInterno;  // cm, of the example
  struct Riga {
    const char* ferri;
    double distanza;  // radius of a ring, distance of a group from the upper edge
  };
  std::array<Riga, 4> righe;
};

namespace {

constexpr std::array<FormaC, 2> kForme = {{
    {"CIRCOLARE", false, 0, {{{"10D16", 25}, {"0", 0}, {"1D20", 3}, {"1D20", 57}}}},
    {"ANULARE", true, 20, {{{"10D16", 25}, {"5D18", 23}, {"1D20", 3}, {"1D20", 57}}}},
}};
constexpr double kMomentoEsempio = 15000, kRaggioEsempio = 30;

constexpr const char* kBenvenuto =
    "LA BRENTOLI VI DA' IL BENVENUTO\nE VI AUGURA BUON LAVORO.\n\n"
    "E' NECESSARIO SCEGLIERE PER PRIMA COSA IL TIPO DI SEZIONE DA VERIFICARE";
constexpr const char* kSegni =
    "Tensioni di COMPRESSIONE  --- NEGATIVE\nTensioni di TRAZIONE      --- POSITIVE";
constexpr const char* kNonVerificata =
    "\n\n\nLo sfondo giallo indica che la sezione non è verificata";

std::string BoxText(EsitoC esito) {
  const std::string first = "  DATI NON ACCETTABILI !\n";
  switch (esito) {
    case EsitoC::GeometriaErrata:
      return first + "RIVERIFICARE LA GEOMETRIA";
    case EsitoC::SenzaArmatura:
      return first + "  MANCANO LE ARMATURE    ";
    case EsitoC::ArmaturaErrata:
      return first + " RIVERIFICARE LE ARMATURE";
    case EsitoC::Fatto:
      break;
  }
  return {};
}

}  // namespace

FrmVerFlessC1::FrmVerFlessC1(RunState& stato)
    : FormRiprendibile(
          "frmVER_FLESS_C1",
          "VERIFICA a FLESSIONE SEMPLICE di SEZIONI in C.A. : Circolari ed Anulari ( metodo \"n\" "
          ")"),
      forme(*this, {"Circolare", "Anulare"}),
      carichi(*this),
      fraGeometria(*this, "fraGeometria", "GEOMETRIA"),
      CD_02(*this, "CD_02", "Raggio esterno sezione [cm.]", LimitiLunghezza()),
      CD_03(*this, "CD_03", "Raggio interno sezione[cm.]", LimitiLunghezza()),
      fraArmature(*this, "fraArmature", "ARMATURE"),
      fraDistribuita(*this, "fraDistribuita", "ARMATURA DISTRIBUITA SU CIRCONFERENZA"),
      anelli(*this, 1, 2, "", "Raggio  [cm.]"),
      fraConcentrata(*this, "fraConcentrata", "ARMATURA CONCENTRATA"),
      gruppi(*this, 3, 2, "", "Distanza dal bordo superiore  [cm.]"),
      risultati(*this),
      Lavagna(*this, "Lavagna", 30, 10, 720),
      ComCalcola(*this, "ComCalcola", "CALCOLA", Button::Role::Default),
      ComEsci(*this, "ComEsci", "ESCI", Button::Role::Close),
      stato_(stato) {
  Arrange();
  TieEvents();
}

void FrmVerFlessC1::Arrange() {
  SetContent(
      Column({Row({Column({forme.Contents(), carichi.Contents(),
                           Group(fraGeometria, {Fields({CD_02, CD_03})}), risultati.Valori()}),
                   Column({Group(fraArmature, {Group(fraDistribuita, {anelli.Contents()}),
                                               Group(fraConcentrata, {gruppi.Contents()})}),
                           risultati.Note(), Lavagna})}),
              Buttons({cmdRIPRENDI, ComCalcola, ComEsci})}));
}

void FrmVerFlessC1::TieEvents() {
  for (std::size_t i = 0; i < kForme.size(); ++i)
    forme.Option[i].onChange = [this, i] {
      if (forme.Option[i].Value()) ScegliForma(kForme[i]);
    };
  carichi.CD_01.onChange = [this] {
    risultati.Azzera();
    risultati.Label_NOTA.SetText(kSegnoMomento);
  };
  ComCalcola.onPress = [this] { Calcola(); };
  ComEsci.onPress = [this] { Close(); };
}

void FrmVerFlessC1::OnOpen() { risultati.Label_NOTA.SetText(kBenvenuto); }

void FrmVerFlessC1::ScegliForma(const FormaC& scelta) {
  forma_ = &scelta;
  CD_03.SetVisible(scelta.anulare);
  DisegnaSchemaC(Lavagna, scelta.anulare);
  ScriviEsempio();
}

void FrmVerFlessC1::ScriviEsempio() {
  carichi.ScriviEsempio(kMomentoEsempio);
  CD_02.SetValue(kRaggioEsempio);
  CD_03.SetValue(forma_->raggioInterno);
  for (std::size_t i = 0; i < forma_->righe.size(); ++i) {
    RigaArmatura& riga = i < 2 ? anelli.righe[i] : gruppi.righe[i - 2];
    riga.CasellaFerri.SetText(forma_->righe[i].ferri);
    riga.Distanza.SetValue(forma_->righe[i].distanza);
  }
}

// Radii become diameters.
DatiCircolare FrmVerFlessC1::LeggiDati() const {
  DatiCircolare dati{};
  dati[1] = 2 * CD_02.Value();
  dati[2] = forma_->anulare ? 2 * CD_03.Value() : 0;
  for (std::size_t i = 0; i < 2; ++i) {
    dati[3 + 2 * i] = anelli.righe[i].CasellaFerri.Area();
    dati[4 + 2 * i] = 2 * anelli.righe[i].Distanza.Value();
    dati[7 + 2 * i] = gruppi.righe[i].CasellaFerri.Area();
    dati[8 + 2 * i] = gruppi.righe[i].Distanza.Value();
  }
  dati[11] = carichi.CD_01.Value() * 100.0;
  return dati;
}

void FrmVerFlessC1::Calcola() {
  if (forma_ == nullptr) {
    stato_.player.Ask({" !!  ATTENZIONE  !!  ", "  SCEGLIERE IL TIPO DI SEZIONE  ",
                       MessageBox::Icon::Exclamation, MessageBox::Buttons::Ok});
    risultati.Label_NOTA.SetText(kBenvenuto);
    return;
  }
  const DatiCircolare dati = LeggiDati();
  if (dati[11] == 0) {
    stato_.player.Ask(AvvisoVerifica(kMomentoNullo));
    return;
  }
  VerificaSezioneCircolare(dati, tensioni_);
  if (Esito(tensioni_) != EsitoC::Fatto) {
    stato_.player.Ask(AvvisoVerifica(BoxText(Esito(tensioni_))));
    return;
  }
  MostraRisultati(dati);
}

void FrmVerFlessC1::MostraRisultati(const DatiCircolare& dati) {
  const bool positive = dati[11] > 0;
  risultati.Mostra({tensioni_[1], tensioni_[2], tensioni_[3], tensioni_[positive ? 11 : 10],
                    tensioni_[positive ? 10 : 11]});
  const TensioniAmmissibili ammesse{carichi.CD_12.Value(), carichi.CD_13.Value()};
  // Here compressed steel is looked at too.
  const bool verificata =
      std::fabs(tensioni_[2]) < ammesse.cls && std::fabs(tensioni_[3]) < ammesse.cls &&
      std::fabs(tensioni_[10]) < ammesse.acciaio && std::fabs(tensioni_[11]) < ammesse.acciaio;
  risultati.Label_NOTA.SetText(std::string(kSegni) + (verificata ? "" : kNonVerificata));
  DisegnaSezioneC(Lavagna, dati, tensioni_, ammesse, verificata);
}

void MostraVerFlessC1(RunState& stato) {
  FrmVerFlessC1 form(stato);
  MostraRiprendibile(stato, form);
}

}  // namespace orm
