#include "structures/resumable_form.h"

#include <map>
#include <utility>

#include "runtime/failure.h"

namespace orm {
namespace {

struct DatiTenuti {
  std::map<std::string, FormValues> perForm;  // by the form's name
};

}  // namespace

FormRiprendibile::FormRiprendibile(std::string nome, std::string titolo)
    : Form(std::move(nome), std::move(titolo)),
      cmdRIPRENDI(*this, "cmdRIPRENDI", "&RIPRENDI I DATI") {
  cmdRIPRENDI.SetHint("Riporta i dati con cui questa finestra è stata lasciata l'ultima volta.");
  cmdRIPRENDI.SetVisible(false);
}

void MostraRiprendibile(RunState& stato, FormRiprendibile& form) {
  FormValues& tenuti = stato.memoria.The<DatiTenuti>().perForm[form.Name()];
  const FormValues nuovi(form);
  form.cmdRIPRENDI.SetVisible(!tenuti.IsEmpty());
  // What stands in the form changes places with what was kept, so that this costs nothing either.
  form.cmdRIPRENDI.onPress = [&] {
    const FormValues presenti(form);
    form.Riprendi(std::exchange(tenuti, presenti));
    if (Control* primo = form.FirstFocus()) form.MoveFocus(*primo);
  };
  const auto tieni = [&] {
    if (const FormValues lasciati(form); lasciati != nuovi) tenuti = lasciati;
  };
  try {
    stato.player.Show(form);
  } catch (const RuntimeFailure&) {
    tieni();
    throw;
  }
  tieni();
}

}  // namespace orm
