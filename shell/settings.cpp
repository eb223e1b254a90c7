#include "shell/settings.h"

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

void ScriviRedditiIniziali(const WorkFolder& folder) {
  DataWriter file;
  std::string nascita = "01/01/1940";
  std::string iscrizione = "01/01/1979";
  std::string sesso = "M";
  std::int16_t zero = 0;
  file.Line(Field("data di nascita", nascita), Field("data di iscrizione", iscrizione),
            Field("sesso", sesso), Field("condizione", zero));
  for (int i = 0; i < 17; ++i) file.Line(Field("reddito", zero));
  file.Replace(folder, kFileRedditi);
}

}  // namespace orm
