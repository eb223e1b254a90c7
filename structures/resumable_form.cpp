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

FormRiprendibile::FormRiprendibile(std::string nome, std::string titolo, RunState& stato)
    : Form(std::move(nome), std::move(titolo)), stato_(stato) {
  cmdRIPRENDI.SetHint("Riporta i dati con cui questa finestra è stata lasciata l'ultima volta.");
  cmdRIPRENDI.SetVisible(false);
}

void FormRiprendibile::Presenta() {
  FormValues& tenuti = stato_.memoria.The<DatiTenuti>().perForm[Name()];
  const FormValues nuovi(*this);
  cmdRIPRENDI.SetVisible(!tenuti.IsEmpty());
  // What stands in the form changes places with what was kept, so that this costs nothing either.
  cmdRIPRENDI.onPress = [&] {
    const FormValues presenti(*this);
    Riprendi(std::exchange(tenuti, presenti));
    if (Control* primo = FirstFocus()) MoveFocus(*primo);
  };
  const auto tieni = [&] {
    if (const FormValues lasciati(*this); lasciati != nuovi) tenuti = lasciati;
  };
  try {
    stato_.player.Show(*this);
  } catch (const RuntimeFailure&) {
    tieni();
    throw;
  }
  tieni();
}

}  // namespace orm
