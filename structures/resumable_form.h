// A verification comes up fresh each time. It is never confirmed, so that the data of its last use
// are always there to be taken up again (dialogs/form_values.h). Two buttons keep them in a file of
// the folder and open them again, in this run or in another one.
#pragma once

#include <string>
#include <vector>

#include "dialogs/data_forms/result_form.h"
#include "dialogs/form_values.h"
#include "shell/state/run_state.h"

namespace orm {

class FormRiprendibile : public FormDiCalcolo {
 public:
  FormRiprendibile(std::string nome, std::string titolo, RunState& stato);
  void Presenta();

  void Resume(const FormValues& values) override;
  std::vector<std::string> Hidden() const override;
  void SetHidden(const std::vector<std::string>& values) override;

  Button cmdSALVA{*this, "cmdSALVA", "SA&LVA I DATI..."};
  Button cmdAPRI{*this, "cmdAPRI", "&APRI I DATI..."};

 protected:
  // Dialogs whose choices belong to the data of this verification, as long as the run.
  virtual std::vector<Form*> Annesse() const { return {}; }

  RunState& stato_;

 private:
  void Salva();
  void Apri();
  void Carica(const std::string& nome);

  FormValues nuovi_;  // as the form comes up
};

}  // namespace orm
