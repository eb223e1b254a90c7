#include "tariff/files/damaged_file.h"

#include "runtime/numbers.h"

namespace orm {

std::string NomeDellOriginale(const WorkFolder& folder, const std::string& nome) {
  const auto punto = nome.find_last_of('.');
  const std::string radice = nome.substr(0, punto) + "_ORIGINALE";
  const std::string tipo = punto == std::string::npos ? "" : nome.substr(punto);
  std::string altro = radice + tipo;
  for (int n = 2; folder.Exists(altro); ++n) altro = radice + NumberText(n) + tipo;
  return altro;
}

void FileDelForm::DiciDanno(const RuntimeFailure& failure) {
  danneggiato_ = true;
  MessageBox box = FailureBox(failure);
  box.text += "\n\nLa finestra si apre senza dati. Con O.K. il file di prima resta con il nome " +
              NomeDellOriginale(folder_, nome_) + ".";
  player_.Ask(box);
}

void FileDelForm::Conserva() {
  if (!danneggiato_) return;
  folder_.Replace(NomeDellOriginale(folder_, nome_), folder_.Read(nome_));
  danneggiato_ = false;
}

}  // namespace orm
