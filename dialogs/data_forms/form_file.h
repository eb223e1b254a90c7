// The data of a form as a person keeps them in a file: a line with the form's name and the number
// of its fields, then a line for each field, its name and its value. A list is kept by its item's
// text. No form that is kept so has a date.
#pragma once

#include "dialogs/form_values.h"
#include "runtime/data_file.h"

namespace orm {

void ScriviDatiForm(DataWriter& file, const Form& form);

// The data of the form in the file, which goes on behind them. What the form would not let a person
// enter is refused with its place, as is a field that lacks or comes twice. `nuovi` are the values
// with which the form comes up: where it has a choice made, the file has one.
FormValues LeggiDatiForm(DataReader& file, const Form& form, const FormValues& nuovi);

}  // namespace orm
