#include "structures/sections/form_bending_t.h"

#include <cmath>
#include <cstddef>

#include "structures/sections/drawing_t.h"

namespace orm {
namespace {

constexpr NoteFlessione kNoteT{
    "LA BRENTOLI VI DÀ IL BENVENUTO\nE VI AUGURA BUON LAVORO.\n\n"
    "È NECESSARIO SCEGLIERE PER PRIMA COSA IL TIPO DI SEZIONE DA VERIFICARE",
    "TENS. COMPRESSIONE  --- NEGATIVE\nTENS. TRAZIONE            --- POSITIVE",
    "\n\n\nLo sfondo giallo indica sezione non verificata", false};

const char* Motivo(EsitoT esito) {
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
    : FormFlessione("frmVER_FLESS_T1",
                    "VERIFICA FLESSIONE SEMPLICE SEZIONI in C.A. : Rettangolari, a T, a T rovescia "
                    "e a doppia T",
                    stato, kNoteT,
                    {kFormeT[0].nome, kFormeT[1].nome, kFormeT[2].nome, kFormeT[3].nome}) {
  Disponi({CD_02, CD_03, CD_04, CD_05, CD_06, CD_07}, {strati.Contents()});
  CD_01.onLeave = [this] { Label_NOTA.SetText(""); };
  for (FerriBox& ferri : strati.CasellaFerri) ferri.onChange = [this] { Azzera(); };
  for (FloatBox& distanza : strati.Distanza) distanza.onChange = [this] { Azzera(); };
}

void FrmVerFlessT1::ScegliForma(std::size_t forma) {
  forma_ = &kFormeT[forma];
  MostraCampi();
  DisegnaSchemaT(Lavagna, *forma_);
  ScriviDati();
  Azzera();
}

void FrmVerFlessT1::MostraCampi() {
  CD_02.SetVisible(forma_->alaSuperiore);
  CD_06.SetVisible(forma_->alaSuperiore);
  CD_04.SetVisible(forma_->alaInferiore);
  CD_07.SetVisible(forma_->alaInferiore);
  CD_03.SetCaption(forma_->nomeAnima);
}

// The example of the shape.
void FrmVerFlessT1::ScriviDati() {
  for (std::size_t i = 0; i < strati.Distanza.size(); ++i) strati.Scrivi(i, "", 0);
  ScriviEsempio(forma_->CD_01);
  FloatBox* const geometria[] = {&CD_02, &CD_03, &CD_04, &CD_05, &CD_06, &CD_07};
  for (std::size_t i = 0; i < forma_->geometria.size(); ++i)
    geometria[i]->SetValue(forma_->geometria[i]);
  for (const auto& [strato, ferri, distanza] : forma_->strati)
    if (strato != 0) strati.Scrivi(strato - 1, ferri, distanza);
}

DatiSezione FrmVerFlessT1::LeggiDati() const {
  DatiSezione dati;
  dati.B = forma_->alaSuperiore ? CD_02.Value() : CD_03.Value();
  dati.b = CD_03.Value();
  dati.Bi = forma_->alaInferiore ? CD_04.Value() : CD_03.Value();
  dati.H = CD_05.Value();
  dati.s = forma_->alaSuperiore ? CD_06.Value() : 0;
  dati.si = forma_->alaInferiore ? CD_07.Value() : 0;
  for (std::size_t i = 0; i < dati.strati.size(); ++i)
    dati.strati[i] = {strati.CasellaFerri[i].Area(), strati.Distanza[i].Value()};
  dati.M = Momento();
  return dati;
}

void FrmVerFlessT1::Calcola() {
  if (forma_ == nullptr || gruppo.Chosen() < 0)
    return Avvisa("  SCEGLIERE ALMENO UN TIPO DI SEZIONE  ");
  Lavagna.Clear();
  if (SenzaMomento()) return;
  const DatiSezione dati = LeggiDati();
  VerificaSezioneT(dati, tensioni_);
  if (tensioni_.esito != EsitoT::Fatto) return Avvisa(Motivo(tensioni_.esito));
  const TensioniAmmissibili ammesse = Ammesse();
  // Compressed steel is left out on purpose: its stress is 15 times one that concrete beside it
  // has.
  const bool verificata = std::fabs(tensioni_.clsSup) < ammesse.cls &&
                          std::fabs(tensioni_.clsInf) < ammesse.cls &&
                          std::fabs(tensioni_.massimo) < ammesse.acciaio;
  Mostra(tensioni_, verificata, SpiegaSezioneT(dati, tensioni_, ammesse));
  DisegnaSezioneT(Lavagna, dati, tensioni_, ammesse, verificata);
}

void MostraVerFlessT1(RunState& stato) { FrmVerFlessT1(stato).Presenta(); }

}  // namespace orm
