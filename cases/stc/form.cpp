#include "cases/stc/form.h"

#include "runtime/numbers.h"
#include "tariff/law/table_condition_surveys.h"

namespace orm {

FrmStcDati::FrmStcDati(DatiStc& dati, const IndiciFoi& indici)
    : Form("frmSTC_Dati", "STATI DI CONSISTENZA", "dati dello stato"),
      dati_(dati),
      indici_(indici) {
  SetContent(Column({Fields({casellainteri1, casellainteri2, casellainteri3}), Check1,
                     Fields({casellainteri4, casellainteri5, Row({DTPicker1, lblGiorno})}),
                     lblIndici, Buttons({Command1})}));
  casellainteri1.SetValue(dati.Superficie);
  casellainteri2.SetValue(dati.NumeroPartite);
  casellainteri3.SetValue(dati.NumeroMappali);
  casellainteri4.SetValue(dati.VolumeAbitazioni);
  casellainteri5.SetValue(dati.SuperficieAgricola);
  Check1.SetValue(dati.Maggiorazione != 0);
  const Date primo{dati.AnnoPrestazione, dati.MesePrestazione, 1};
  if (IsValid(primo)) DTPicker1.SetValue(primo);
  DTPicker1.onChange = [this] { CercaIndici(); };
  CercaIndici();
  Command1.onPress = [this] { Conferma(); };
}

void FrmStcDati::CercaIndici() {
  const Date& giorno = DTPicker1.Value();
  const std::string obiezione = indici_.Obiezione(giorno.month, giorno.year);
  lblIndici.SetVisible(!obiezione.empty());
  lblIndici.SetText(obiezione);
}

void FrmStcDati::Conferma() {
  dati_ = {.Superficie = CheckedInt32(casellainteri1.Value()),
           .NumeroPartite = CheckedInt32(casellainteri2.Value()),
           .NumeroMappali = CheckedInt32(casellainteri3.Value()),
           .VolumeAbitazioni = CheckedInt32(casellainteri4.Value()),
           .SuperficieAgricola = CheckedInt32(casellainteri5.Value()),
           .AnnoPrestazione = CheckedInt16(DTPicker1.Value().year),
           .MesePrestazione = CheckedInt16(DTPicker1.Value().month),
           .Maggiorazione = Check1.Value() ? kFrontiStradali : 0};
  Esci(Uscita::Conferma);
}

}  // namespace orm
