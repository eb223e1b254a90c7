// Found as people type it.
#include "jobs/job_search.h"
#include "tests/unit/jobs/job_folder.h"

namespace orm {
namespace {

class SearchTest : public JobsTest {
 protected:
  void LayNote(const std::string& job, const std::string& code, const std::string& client,
               const std::string& subject, const std::string& net) const {
    Lay(job + "/INT_" + code + ".DAP",
        "\"" + client + "\"\r\n\"" + subject + "\"\r\n\"\"\r\n\"\"\r\n");
    Lay(job + "/OUT_" + code + ".DOC",
        "COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )   " + net + "\r\n");
  }
  // Jobs found, each with its notes: "A1 B".
  static std::string Found(Lavori& jobs, const char* typed) {
    Ricerca search(jobs, typed);
    while (!search.Prosegui(std::chrono::milliseconds(0))) continue;
    std::string all;
    for (const LavoroTrovato& found : search.Trovati()) {
      all += (all.empty() ? "" : " ") + found.nome;
      for (const std::size_t note : found.parcelle) all += std::to_string(note);
    }
    return all;
  }
};

TEST_F(SearchTest, WordsAndAmountsInAnyOrder) {
  LayNote("Scuola", "COA_E", "Comune di Citt\xE0 Sant'Angelo", "Lotto 2", "\x80 12.500,00");
  LayNote("Scuola", "PPE", "ANAS", "Strada", "L. 1.000.000\r\ned in EURO 516,46");
  LayNote("Ponte", "AGP", "Rossi", "Ponte sul 12", "L. 12.500.000");
  fs::create_directory(PathOf("Vuoto"));
  const auto now =
      fs::file_time_type::clock::now();  // the clock of files may stand still between two
  fs::last_write_time(PathOf("Vuoto"), now - std::chrono::minutes(1));
  fs::last_write_time(PathOf("Scuola"), now - std::chrono::hours(1));
  Lavori jobs(root_);
  jobs.Guarda();
  const std::pair<const char*, const char*> cases[] = {{"", "Ponte Vuoto Scuola"},
                                                       {"citta SANT'angelo", "Scuola0"},
                                                       {"angelo collaudo", "Scuola0"},
                                                       {"strada anas ppe", "Scuola1"},
                                                       {"rossi anas", ""},
                                                       {"vuoto", "Vuoto"},
                                                       {"scuola", "Scuola"},
                                                       {"scuola strada", "Scuola1"},
                                                       {"12.500,00", "Scuola0"},
                                                       {"12500", "Ponte0 Scuola0"},
                                                       {"€ 12500,0", "Scuola0"},
                                                       {"516,46", "Scuola1"},
                                                       {"516.46", "Scuola1"},
                                                       {"1.000.000", "Scuola1"},
                                                       {"1000", "Scuola1"},
                                                       {"12500,5", ""},
                                                       {"12", "Ponte0"},
                                                       {"comune 12500", "Scuola0"}};
  for (const auto& [typed, found] : cases) EXPECT_EQ(Found(jobs, typed), found) << typed;
}

}  // namespace
}  // namespace orm
