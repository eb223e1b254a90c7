// How long an amount may be that a person types: every text that the note prints of it, negative
// sums included, fits the field of its column.
#pragma once

#include "dialogs/number_entry.h"

namespace orm {

// Amounts of works: 16 characters in the column, thousands points included; a fee on the whole
// amount, coefficients included, still fits its 14.
inline const NumberLimits kWorksLire{.least = 0, .most = 99999999999.0, .decimals = 0};
inline const NumberLimits kWorksEuro{
    .least = 0, .most = 99999999.99, .decimals = 2, .trailingZeros = true};

// The same where a negative amount has a meaning of its own.
inline const NumberLimits kSignedWorksLire{
    .least = -99999999999.0, .most = 99999999999.0, .decimals = 0};
inline const NumberLimits kSignedWorksEuro{
    .least = -99999999.99, .most = 99999999.99, .decimals = 2, .trailingZeros = true};

// Advances: 14 characters in the column, and a net amount below zero takes one for its sign.
inline const NumberLimits kAdvancesLire{.least = 0, .most = 9999999999.0, .decimals = 0};
inline const NumberLimits kAdvancesEuro{
    .least = 0, .most = 99999999.99, .decimals = 2, .trailingZeros = true};

}  // namespace orm
