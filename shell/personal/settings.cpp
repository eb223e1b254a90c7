#include "shell/personal/settings.h"

#include "runtime/data_file.h"

namespace orm {

void LeggiEditor(RunState& stato) {
  const OutsidePrograms programs = stato.player.DefaultPrograms();
  Editors editors{programs.reports, programs.configuration, programs.pdf};
  if (stato.folder.Exists(kFileEditor)) {
    DataReader file(stato.folder, kFileEditor);
    CampiEditors(file, editors);
    file.ExpectEnd();
  }
  stato.editors = editors;
}

void LeggiCriteri(RunState& stato) {
  Criteri criteri;
  if (stato.folder.Exists(kFileCriteri)) {
    DataReader file(stato.folder, kFileCriteri);
    CampiCriteri(file, criteri);
    file.ExpectEnd();
  }
  stato.criteri = criteri;
}

void ScriviEditor(const RunState& stato) {
  DataWriter file;
  Editors editors = stato.editors;
  CampiEditors(file, editors);
  file.Replace(stato.folder, kFileEditor);
}

void ScriviCriteri(const RunState& stato) {
  DataWriter file;
  Criteri criteri = stato.criteri;
  CampiCriteri(file, criteri);
  file.Replace(stato.folder, kFileCriteri);
}

void ScriviRedditiIniziali(const WorkFolder& folder) { ScriviRedditi(folder, RedditiIniziali()); }

}  // namespace orm
