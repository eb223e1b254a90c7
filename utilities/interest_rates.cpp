// Reading of the table of rates.
#include "utilities/interest_rates.h"

#include <string>

#include "runtime/data_file.h"

namespace orm {
namespace {

Date LeggiData(DataReader& file, const char* field) {
  const std::string text = file.Text(field);
  const auto date = ParseDate(text);
  if (!date) file.Fail(field, "\"" + text + "\" non è una data: si scrive gg/mm/aaaa.");
  return *date;
}

}  // namespace

TabellaTus LeggiTabellaTus(const WorkFolder& folder, const Date& today) {
  DataReader file(folder, kFileTus);
  const int NumeroPeriodi = file.Count("NumeroPeriodi", kPeriodiTus);
  if (NumeroPeriodi == 0) file.Fail("NumeroPeriodi", "La tabella dei tassi non contiene periodi.");
  file.Text("(intestazione)");

  TabellaTus tabella;
  for (int i = 1; i <= NumeroPeriodi; ++i) {
    PeriodoTus periodo;
    periodo.InizioPeriodo = LeggiData(file, "InizioPeriodo");
    if (!tabella.empty() && periodo.InizioPeriodo <= tabella.back().FinePeriodo)
      file.Fail("InizioPeriodo", "Il periodo comincia il " + ShortDate(periodo.InizioPeriodo) +
                                     ", ma il periodo precedente finisce il " +
                                     ShortDate(tabella.back().FinePeriodo) + ".");
    if (i == NumeroPeriodi) {
      file.Text("FinePeriodo");
      periodo.FinePeriodo = today;
    } else {
      periodo.FinePeriodo = LeggiData(file, "FinePeriodo");
      if (periodo.FinePeriodo < periodo.InizioPeriodo)
        file.Fail("FinePeriodo", "Il periodo finisce il " + ShortDate(periodo.FinePeriodo) +
                                     ", prima del suo inizio, il " +
                                     ShortDate(periodo.InizioPeriodo) + ".");
    }
    periodo.Tasso = file.Number("Tasso");
    periodo.nota = file.Text("(nota)");
    tabella.push_back(periodo);
  }
  // A line added without raising the count would be left out of the reckoning in silence.
  file.ExpectEnd();
  return tabella;
}

}  // namespace orm
