// The message boxes of the checks that have a title of their own.
#pragma once

#include <string>
#include <utility>

#include "dialogs/player.h"

namespace orm {

inline constexpr const char* kAttenzioneVerifica = "   ATTENZIONE    ";

inline MessageBox AvvisoVerifica(std::string testo) {
  return {kAttenzioneVerifica, std::move(testo), MessageBox::Icon::Exclamation,
          MessageBox::Buttons::Ok};
}

}  // namespace orm
