#include "cases/stc/form.h"

#include "runtime/numbers.h"
#include "tariff/law/table_condition_surveys.h"

namespace orm {
namespace {

// As much of each as the report has room for, with everything else at its greatest.
const NumberLimits kCount{.most = 99999, .decimals = 0};
NumberLimits Size(const char* unit) { return {.most = 99999999, .decimals = 0, .unit = unit}; }

}  // namespace

FrmStcDati::FrmStcDati(const DatiStc& dati)
    : Form("frmSTC_Dati", "STATI DI CONSISTENZA"),
      Maggiorazione(dati.Maggiorazione),
      casellainteri1(*this, "casellainteri1", "SUPERFICIE INTERESSATA DALL'INCARICO",
                     Size("metri quadri")),
      casellainteri2(*this, "casellainteri2", "Numero delle PARTITE", kCount),
      casellainteri3(*this, "casellainteri3", "Numero dei MAPPALI", kCount),
      Check1(*this, "Check1", "Maggiorazione per fronti stradali in allargamento"),
      casellainteri4(*this, "casellainteri4", "COSTRUZIONI ADIBITE AD ABITAZIONI OD UFFICI",
                     Size("metri cubi")),
      casellainteri5(*this, "casellainteri5", "COSTRUZIONI ADIBITE AD USO AGRICOLO",
                     Size("metri quadri")),
      DTPicker1(*this, "DTPicker1", "DATA DI ESPLETAMENTO DELLA PRESTAZIONE"),
      lblGiorno(*this, "lblGiorno", "( il giorno è ininfluente)", Label::Style::Note),
      Command1(*this, "Command1", "&O.K.", Button::Role::Default),
      dati_(dati) {
  SetContent(Column({Fields({casellainteri1, casellainteri2, casellainteri3}), Check1,
                     Fields({casellainteri4, casellainteri5, Row({DTPicker1, lblGiorno})}),
                     Buttons({Command1})}));
  casellainteri1.SetValue(dati.Superficie);
  casellainteri2.SetValue(dati.NumeroPartite);
  casellainteri3.SetValue(dati.NumeroMappali);
  casellainteri4.SetValue(dati.VolumeAbitazioni);
  casellainteri5.SetValue(dati.SuperficieAgricola);
  Check1.SetValue(dati.Maggiorazione != 0);
  const Date primo{dati.AnnoPrestazione, dati.MesePrestazione, 1};
  if (IsValid(primo)) DTPicker1.SetValue(primo);
  Command1.onPress = [this] { Confirm(); };
}

void FrmStcDati::Confirm() {
  Maggiorazione = Check1.Value() ? kFrontiStradali : 0;
  dati_ = {.Superficie = CheckedInt32(casellainteri1.Value()),
           .NumeroPartite = CheckedInt32(casellainteri2.Value()),
           .NumeroMappali = CheckedInt32(casellainteri3.Value()),
           .VolumeAbitazioni = CheckedInt32(casellainteri4.Value()),
           .SuperficieAgricola = CheckedInt32(casellainteri5.Value()),
           .AnnoPrestazione = CheckedInt16(DTPicker1.Value().year),
           .MesePrestazione = CheckedInt16(DTPicker1.Value().month),
           .Maggiorazione = Maggiorazione};
  Close();
}

DatiStc FrmStcDati::Dati() const { return dati_; }

}  // namespace orm
