// The message boxes that commands share, with their words.
#pragma once

#include "dialogs/player.h"

namespace orm {

inline constexpr const char* kAttenzione = "  ATTENZIONE !! ";

inline MessageBox Avviso(std::string testo) {
  return {kAttenzione, std::move(testo), MessageBox::Icon::Exclamation, MessageBox::Buttons::Ok};
}

inline MessageBox AvvisoFileUtenteAssente() {
  return Avviso(
      "NON ESISTE IL FILE DEI DATI DEL PROFESSIONISTA\n"
      "INSERIRE TALI DATI RICHIAMANDO L'APPOSITA     \n"
      "OPZIONE DEL MENÚ PERSONALIZZAZIONE            ");
}

}  // namespace orm
