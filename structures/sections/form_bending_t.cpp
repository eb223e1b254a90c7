#include "structures/sections/form_bending_t.h"

#include <cmath>
#include <cstddef>
#include <string>

#include "structures/sections/drawing_t.h"

namespace orm {
namespace {

constexpr const char* kBenvenuto =
    "LA BRENTOLI VI DÀ IL BENVENUTO\nE VI AUGURA BUON LAVORO.\n\n"
    "È NECESSARIO SCEGLIERE PER PRIMA COSA IL TIPO DI SEZIONE DA VERIFICARE";
constexpr const char* kSegni =
    "TENS. COMPRESSIONE  --- NEGATIVE\nTENS. TRAZIONE            --- POSITIVE";
constexpr const char* kNonVerificata = "\n\n\nLo sfondo giallo indica sezione non verificata";

const char* BoxText(EsitoT esito) {
  switch (esito) {
    case EsitoT::GeometriaErrata:
      return "DATI GEOMETRICI NON ACCETTABILI !\nVERIFICARLI";
    case EsitoT::SenzaArmatura:
    case EsitoT::ArmaturaNegativa:
      return "DATI DI ARMATURA NON ACCETTABILI !\nVERIFICARLI";
    case EsitoT::CopriferroErrato:
      return "DATI GEOMETRICI NON ACCETTABILI !\nRIVERIFICARE I DATI INTRODOTTI !\n"
             "POSSIBILE ERRORE SUI VALORI DEI COPRIFERRI";
    case EsitoT::Fatto:
      break;
  }
  return "";
}

}  // namespace

FrmVerFlessT1::FrmVerFlessT1(RunState& stato)
    : FormRiprendibile(
          "frmVER_FLESS_T1",
          "VERIFICA FLESSIONE SEMPLICE SEZIONI in C.A. : Rettangolari, a T, a T rovescia e a "
          "doppia T"),
      forme(*this, {FormeT[0].nome, FormeT[1].nome, FormeT[2].nome, FormeT[3].nome}),
      carichi(*this),
      fraGeometria(*this, "fraGeometria", "GEOMETRIA"),
      CD_02(*this, "CD_02", "Larghezza ala superiore [cm.]", LimitiLunghezza()),
      CD_03(*this, "CD_03", kSpessoreAnima, LimitiLunghezza()),
      CD_04(*this, "CD_04", "Larghezza ala inferiore [cm.]", LimitiLunghezza()),
      CD_05(*this, "CD_05", "Altezza totale [cm.]", LimitiLunghezza()),
      CD_06(*this, "CD_06", "Spessore ala superiore [cm.]", LimitiLunghezza()),
      CD_07(*this, "CD_07", "Spessore ala inferiore [cm.]", LimitiLunghezza()),
      fraArmature(*this, "fraArmature", "ARMATURE"),
      strati(*this, 1, 8, "STRATO", "Distanza dal bordo superiore  [cm.]"),
      risultati(*this),
      Lavagna(*this, "Lavagna", 30, 10, 720),
      ComCalcola(*this, "ComCalcola", "CALCOLA", Button::Role::Default),
      ComEsci(*this, "ComEsci", "ESCI", Button::Role::Close),
      stato_(stato) {
  Arrange();
  TieEvents();
}

void FrmVerFlessT1::Arrange() {
  SetContent(Column(
      {Row({Column({forme.Contents(), carichi.Contents(),
                    Group(fraGeometria, {Fields({CD_02, CD_03, CD_04, CD_05, CD_06, CD_07})}),
                    risultati.Valori()}),
            Column({Group(fraArmature, {strati.Contents()}), risultati.Note(), Lavagna})}),
       Buttons({cmdRIPRENDI, ComCalcola, ComEsci})}));
}

void FrmVerFlessT1::TieEvents() {
  for (std::size_t i = 0; i < FormeT.size(); ++i)
    forme.Option[i].onChange = [this, i] {
      if (forme.Option[i].Value()) ScegliForma(FormeT[i]);
    };
  carichi.CD_01.onChange = [this] {
    risultati.Azzera();
    risultati.Label_NOTA.SetText(kSegnoMomento);
  };
  carichi.CD_01.onLeave = [this] { risultati.Label_NOTA.SetText(""); };
  for (RigaArmatura& strato : strati.righe)
    strato.CasellaFerri.onChange = strato.Distanza.onChange = [this] { risultati.Azzera(); };
  ComCalcola.onPress = [this] { Calcola(); };
  ComEsci.onPress = [this] { Close(); };
}

void FrmVerFlessT1::OnOpen() { risultati.Label_NOTA.SetText(kBenvenuto); }

void FrmVerFlessT1::ScegliForma(const FormaT& scelta) {
  forma_ = &scelta;
  MostraCampi();
  DisegnaSchemaT(Lavagna, scelta);
  ScriviEsempio();
  risultati.Azzera();
}

void FrmVerFlessT1::MostraCampi() {
  CD_02.SetVisible(forma_->alaSuperiore);
  CD_06.SetVisible(forma_->alaSuperiore);
  CD_04.SetVisible(forma_->alaInferiore);
  CD_07.SetVisible(forma_->alaInferiore);
  CD_03.SetCaption(forma_->nomeAnima);
}

void FrmVerFlessT1::ScriviEsempio() {
  for (RigaArmatura& strato : strati.righe) {
    strato.CasellaFerri.SetText("");
    strato.Distanza.SetValue(0);
  }
  carichi.ScriviEsempio(forma_->CD_01);
  FloatBox* const geometria[] = {&CD_02, &CD_03, &CD_04, &CD_05, &CD_06, &CD_07};
  for (std::size_t i = 0; i < forma_->geometria.size(); ++i)
    geometria[i]->SetValue(forma_->geometria[i]);
  for (const StratoEsempio& esempio : forma_->strati) {
    if (esempio.strato == 0) continue;
    RigaArmatura& riga = strati.righe[static_cast<std::size_t>(esempio.strato) - 1];
    riga.CasellaFerri.SetText(esempio.ferri);
    riga.Distanza.SetValue(esempio.distanza);
  }
}

DatiSezione FrmVerFlessT1::LeggiDati() const {
  DatiSezione dati{};
  dati[1] = forma_->alaSuperiore ? CD_02.Value() : CD_03.Value();
  dati[2] = CD_03.Value();
  dati[3] = forma_->alaInferiore ? CD_04.Value() : CD_03.Value();
  dati[4] = CD_05.Value();
  dati[5] = forma_->alaSuperiore ? CD_06.Value() : 0;
  dati[6] = forma_->alaInferiore ? CD_07.Value() : 0;
  for (std::size_t i = 0; i < strati.righe.size(); ++i) {
    dati[7 + 2 * i] = strati.righe[i].CasellaFerri.Area();
    dati[8 + 2 * i] = strati.righe[i].Distanza.Value();
  }
  dati[23] = carichi.CD_01.Value() * 100.0;
  return dati;
}

void FrmVerFlessT1::Calcola() {
  if (forma_ == nullptr) {
    stato_.player.Ask(AvvisoVerifica("  SCEGLIERE ALMENO UN TIPO DI SEZIONE  "));
    return;
  }
  Lavagna.Clear();
  const DatiSezione dati = LeggiDati();
  if (dati[23] == 0) {
    stato_.player.Ask(AvvisoVerifica(kMomentoNullo));
    return;
  }
  VerificaSezioneT(dati, tensioni_);
  if (Esito(tensioni_) != EsitoT::Fatto) {
    stato_.player.Ask(AvvisoVerifica(BoxText(Esito(tensioni_))));
    return;
  }
  MostraRisultati(dati);
}

void FrmVerFlessT1::MostraRisultati(const DatiSezione& dati) {
  // The two fields of steel show its extreme stresses, whatever their captions say.
  const bool positive = dati[23] > 0;
  risultati.Mostra({tensioni_[1], tensioni_[2], tensioni_[3], tensioni_[positive ? 13 : 12],
                    tensioni_[positive ? 12 : 13]});
  const TensioniAmmissibili ammesse{carichi.CD_12.Value(), carichi.CD_13.Value()};
  // Compressed steel is left out on purpose: its stress is 15 times one that concrete beside it
  // has.
  const bool verificata = std::fabs(tensioni_[2]) < ammesse.cls &&
                          std::fabs(tensioni_[3]) < ammesse.cls &&
                          std::fabs(tensioni_[12]) < ammesse.acciaio;
  risultati.Label_NOTA.SetText(std::string(kSegni) + (verificata ? "" : kNonVerificata));
  DisegnaSezioneT(Lavagna, dati, tensioni_, ammesse, verificata);
}

void MostraVerFlessT1(RunState& stato) {
  FrmVerFlessT1 form(stato);
  MostraRiprendibile(stato, form);
}

}  // namespace orm
