// Ten thousand jobs: listed, searched, and what they cost in memory.
//
//   many_jobs [JOBS] [FOLDER]   the folder is kept where it is named
#include <sys/resource.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "jobs/job_search.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

std::string TheReport() {
  std::string text;
  for (int i = 0; i < 80; ++i)
    text += "Onorario in funzione delle Particelle                  L.        200.000\r\n";
  return text;
}

void Lay(const fs::path& job, int number) {
  fs::create_directory(job);
  const std::string client = "Comune n. " + std::to_string(number),
                    net = std::to_string(100 + number % 900) + ".000";
  for (const char* code : {"PPE", "COA"}) {
    const std::string name = code;
    std::ofstream(job / ("INT_" + name + ".DAP"))
        << '"' << client << "\"\r\n\"Strada, lotto " << number << "\"\r\n\"\"\r\n\"\"\r\n";
    std::ofstream(job / ("INP_" + name + ".DAP")) << "2,5,3,1,1\r\n0,0,\"\",1\r\n";
    std::ofstream(job / ("OUT_" + name + ".DOC"))
        << TheReport() << "\r\nCOMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )     L. " << net
        << "\r\n";
  }
  for (const char* name : {"UTENTE.DAG", "TUS.CFG", "CAC.CFG", "CS1.CFG", "GEO.CFG"})
    std::ofstream(job / name) << name;
}

template <class Action>
void Tell(const char* what, Action&& action) {
  const auto start = Clock::now();
  const auto result = action();
  const std::chrono::duration<double, std::milli> time = Clock::now() - start;
  rusage use{};
  ::getrusage(RUSAGE_SELF, &use);
  std::cout << what << ": " << result << ", " << static_cast<int>(time.count()) << " ms, "
            << use.ru_maxrss / 1024 << " MB\n";
}

std::size_t Found(orm::Lavori& jobs, const char* typed) {
  orm::Ricerca search(jobs, typed);
  while (!search.Prosegui(std::chrono::milliseconds(20))) continue;
  return search.Trovati().size();
}

}  // namespace

int main(int count, char** words) {
  const int many = count > 1 ? std::atoi(words[1]) : 10000;
  const fs::path root = count > 2 ? fs::path(words[2]) : fs::temp_directory_path() / "many_jobs";
  fs::create_directories(root);
  for (int i = 0; i < many; ++i) Lay(root / ("Lavoro " + std::to_string(i)), i);
  orm::Lavori jobs(root);
  Tell("list", [&] { return jobs.Guarda() ? jobs.Voci().size() : 0; });
  Tell("list again", [&] { return jobs.Guarda() ? 0 : jobs.Voci().size(); });
  Tell("first search", [&] { return Found(jobs, "comune 4711"); });
  Tell("next search", [&] { return Found(jobs, "comune 4712"); });
  jobs.Guarda();
  Tell("search after a look", [&] { return Found(jobs, "comune 4713"); });
  if (count <= 2) fs::remove_all(root);
}
