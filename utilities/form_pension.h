// The dialog of the INARCASSA pension.
#pragma once

#include <memory>
#include <vector>

#include "dialogs/form.h"
#include "shell/run_state.h"
#include "utilities/pension_file.h"

namespace orm {

void MostraPensioneInarcassa(RunState& run);

class FrmInaInPensione : public Form {
 public:
  explicit FrmInaInPensione(RunState& run);

  Frame fraCaso{*this, "fraCaso", "CASO"};
  OptionGroup caso;
  OptionButton Option1{*this, "Option1", "Nuovo ", caso};
  OptionButton Option2{*this, "Option2", "Archiviato", caso};
  Label Label2{*this, "Label2", "  ANNO  "};
  Label Label3{*this, "Label3", "  REDDITO PROFESSIONALE  "};
  std::vector<std::unique_ptr<InterBox>> ciRedditi = Righe();  // Lire, 1984 to 2000
  Frame fraAnzianita{*this, "Label5", "  Anzianità di Contribuzione  "};
  InterBox ciAnni{*this, "ciAnni", "Anni", {.most = 99}};
  InterBox ciGiorni{*this, "ciGiorni", "Giorni", {.most = 366}};
  InterBox ciPensioneAnnuale{*this, "ciPensioneAnnuale", "  IMPORTO ANNUALE PENSIONE  "};
  Label lblPensioneMinima{*this, "lblPensioneMinima", "    PENSIONE MINIMA    "};
  Button cmdCALCOLOPENSIONE{*this, "cmdCALCOLOPENSIONE", "CALCOLA PENSIONE", Button::Role::Default};
  Button cmdARCHIVIA{*this, "cmdARCHIVIA", "ARCHIVIA CASO"};

 private:
  std::vector<std::unique_ptr<InterBox>> Righe();
  Layout Disposizione();
  void Nuovo();
  void Archiviato();
  void Archivia();
  void CalcolaPensione();
  void SvuotaRisultato();
  RedditiAnnui Redditi() const;
  void MostraRedditi(const RedditiAnnui& redditi);

  RunState& run_;
  TestataRedditi testata_;  // as read, empty until a file has been read
  double Pensione_ = 0;     // of the last calculation, also when the minimum is shown
};

}  // namespace orm
