// Opening of the technical notes.
#include "shell/help/technical_notes.h"

#include <string>

#include "dialogs/message_boxes.h"

namespace orm {
namespace {

void MostraPdf(RunState& run, const std::string& file) {
  const std::string& lettore = run.editors.LettorePdf;
  if (lettore.empty()) {
    run.player.Ask(Avviso(
        "NON È INDICATO IL PROGRAMMA DI VISUALIZZAZIONE DEI FILE PDF DA UTILIZZARE\n"
        "RICHIAMARE L'APPOSITA OPZIONE - SCELTA DEGLI EDITOR - E INSERIRE I DATI RICHIESTI     "));
    return;
  }
  if (!run.player.ProgramExists(lettore)) {
    run.player.Ask(Avviso(
        "IL PROGRAMMA DI VISUALIZZAZIONE DEI FILE PDF NON SI TROVA NELLA POSIZIONE INDICATA\n"
        "RICHIAMARE L'APPOSITA OPZIONE - SCELTA DEGLI EDITOR - E INSERIRE I DATI ESATTI     "));
    return;
  }
  run.player.StartProgram(lettore, file);
}

}  // namespace

void MostraNotaBalconi(RunState& run) { MostraPdf(run, "BALCONI.PDF"); }
void MostraNotaSolai(RunState& run) { MostraPdf(run, "SOLAIATRALICCIO.PDF"); }

}  // namespace orm
