#include "shell/help/help.h"

#include "shell/help/help_books.h"

namespace orm {

void MostraGuida(RunState& stato, const std::string& place) {
  stato.player.StartProgram(stato.player.DefaultPrograms().help, place);
}

void MostraAvvertenze(RunState& stato) { MostraGuida(stato, "avvertenze.hlp"); }
void MostraManuale(RunState& stato) { MostraGuida(stato, kManuale); }
void MostraNorme(RunState& stato) { MostraGuida(stato, "NORME.HLP"); }
void MostraNormeInarcassa(RunState& stato) { MostraGuida(stato, "inarcassa.hlp"); }

}  // namespace orm
