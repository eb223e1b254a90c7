// Reading and writing of the incomes.
#include "utilities/pension_file.h"

#include "runtime/data_file.h"

namespace orm {
namespace {

template <class Archive>
void Testata(Archive& file, TestataRedditi& t) {
  file.Line(Field("Prima data", t.primaData), Field("Seconda data", t.secondaData),
            Field("Terzo campo", t.terzo), Field("Numero", t.numero));
}

}  // namespace

FileRedditi RedditiIniziali() { return {{"01/01/1940", "01/01/1979", "M", 0}, {}}; }

FileRedditi LeggiRedditi(const WorkFolder& folder) {
  DataReader file(folder, kFileRedditi);
  FileRedditi dati;
  Testata(file, dati.testata);
  for (double& reddito : dati.redditi) {
    if (file.AtEnd()) break;
    reddito = file.Number("Reddito");
  }
  file.ExpectEnd();
  return dati;
}

void ScriviRedditi(const WorkFolder& folder, FileRedditi dati) {
  DataWriter file;
  Testata(file, dati.testata);
  for (double& reddito : dati.redditi) file.Line(Field("Reddito", reddito));
  file.Replace(folder, kFileRedditi);
}

}  // namespace orm
