// The dialog of the INARCASSA pension.
#pragma once

#include <memory>
#include <vector>

#include "dialogs/data_forms/result_form.h"
#include "shell/state/run_state.h"
#include "utilities/pension_file.h"

namespace orm {

class FrmInaInPensione : public FormDiCalcolo {
 public:
  explicit FrmInaInPensione(RunState& stato);

  Frame fraCaso{*this, "fraCaso", "CASO"};
  OptionGroup caso;
  OptionButton Option1{*this, "Option1", "Nuovo ", caso};
  OptionButton Option2{*this, "Option2", "Archiviato", caso};
  Label Label2{*this, "Label2", "  ANNO  "};
  Label Label3{*this, "Label3", "  REDDITO PROFESSIONALE  "};
  Label lblAnno{*this, "lblAnno", "  ANNO  "};  // of the second column
  Label lblReddito{*this, "lblReddito", "  REDDITO PROFESSIONALE  "};
  std::vector<std::unique_ptr<Label>> Label1;        // the years, 1984 to 2000
  std::vector<std::unique_ptr<InterBox>> ciRedditi;  // Lire
  Frame fraAnzianita{*this, "Label5", "  Anzianità di Contribuzione  "};
  Label Label6{*this, "Label6", "Anni"};
  InterBox ciAnni{*this, "ciAnni", "", {.most = 99}};
  Label Label7{*this, "Label7", "Giorni"};
  InterBox ciGiorni{*this, "ciGiorni", "", {.most = 366}};
  Label Label4{*this, "Label4", "  IMPORTO ANNUALE PENSIONE  "};
  InterBox ciPensioneAnnuale{*this, "ciPensioneAnnuale", "", {.currency = "L."}};
  Label lblPensioneMinima{*this, "lblPensioneMinima", "    PENSIONE MINIMA    "};
  Button cmdCALCOLOPENSIONE{*this, "cmdCALCOLOPENSIONE", "&CALCOLA PENSIONE",
                            Button::Role::Default};
  Button cmdARCHIVIA{*this, "cmdARCHIVIA", "&ARCHIVIA CASO"};

 private:
  void Righe();
  Layout Disposizione();
  void Nuovo();
  void Archiviato();
  void Archivia();
  void CalcolaPensione();
  void SvuotaRisultato();
  RedditiAnnui Redditi() const;
  void MostraRedditi(const RedditiAnnui& redditi);

  RunState& stato_;
  TestataRedditi testata_;  // as read, empty until a file has been read
  double Pensione_ = 0;     // of the last calculation, also when the minimum is shown
  bool torna_ = false;      // back to a new case whose figures stand: the file could not be read
};

}  // namespace orm
