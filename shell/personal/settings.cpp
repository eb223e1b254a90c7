#include "shell/personal/settings.h"

namespace orm {

void LeggiEditor(RunState& stato) {
  const OutsidePrograms programs = stato.player.DefaultPrograms();
  const Editors usuali{programs.reports, programs.configuration, programs.pdf};
  stato.editors =
      stato.folder.Exists(kFileEditor) ? LeggiFile(stato.folder, kFileEditor, usuali) : usuali;
}

void LeggiCriteri(RunState& stato) {
  stato.criteri = stato.folder.Exists(kFileCriteri) ? LeggiFile<Criteri>(stato.folder, kFileCriteri)
                                                    : Criteri();
}

void ScriviEditor(const WorkFolder& folder, const Editors& editors) {
  ScriviFile(folder, kFileEditor, editors);
}

void ScriviCriteri(const WorkFolder& folder, const Criteri& criteri) {
  ScriviFile(folder, kFileCriteri, criteri);
}

}  // namespace orm
