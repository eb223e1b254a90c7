// Opening of the technical notes.
#include "shell/help/technical_notes.h"

#include <string>

#include "dialogs/message_boxes.h"

namespace orm {
namespace {

void MostraPdf(RunState& stato, const std::string& file) {
  const std::string& lettore = stato.editors.LettorePdf;
  if (lettore.empty()) {
    stato.player.Ask(Avviso(
        "NON È INDICATO IL PROGRAMMA DI VISUALIZZAZIONE DEI FILE PDF DA UTILIZZARE\n"
        "RICHIAMARE L'APPOSITA OPZIONE - SCELTA DEGLI EDITOR - E INSERIRE I DATI RICHIESTI     "));
    return;
  }
  if (!stato.player.ProgramExists(lettore)) {
    stato.player.Ask(Avviso(
        "IL PROGRAMMA DI VISUALIZZAZIONE DEI FILE PDF NON SI TROVA NELLA POSIZIONE INDICATA\n"
        "RICHIAMARE L'APPOSITA OPZIONE - SCELTA DEGLI EDITOR - E INSERIRE I DATI ESATTI     "));
    return;
  }
  stato.player.StartProgram(lettore, file);
}

}  // namespace

void MostraNotaBalconi(RunState& stato) { MostraPdf(stato, "BALCONI.PDF"); }
void MostraNotaSolai(RunState& stato) { MostraPdf(stato, "SOLAIATRALICCIO.PDF"); }

}  // namespace orm
