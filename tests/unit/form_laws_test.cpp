// The rules of forms, which the scripts on the desktop hold every form to, in each of its states.
#include <gtest/gtest.h>

#include "tests/unit/form_rules.h"

namespace orm {
namespace {

// A form that breaks each of them.
TEST(Forms, RulesSeeWhatIsWrong) {
  Form form("frmX", "");
  Button a(form, "a", "&Uno", Button::Role::Default);
  Button b(form, "a", "D&ue", Button::Role::Default);
  InterBox c(form, "c", "");
  InterBox lost(form, "", "Numero");
  form.SetContent(Column({a, b, c}));
  EXPECT_EQ(FormRules::Broken(form),
            (std::vector<std::string>{
                "frmX.frmX : l'ordine di tabulazione non è quello di lettura, o manca un controllo",
                "frmX.a : nome doppio", "frmX.? : senza nome", "frmX.a : tasto già usato",
                "frmX.frmX : più pulsanti predefiniti", "frmX.c : senza etichetta"}));
}

}  // namespace
}  // namespace orm
