// All jobs below a root: names and times at once, what is in them when it is asked for.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "jobs/job.h"

namespace orm {

struct VoceLavoro {
  std::string nome;
  // The last change of its files, in nanoseconds since 1970: of the folder, which every save of the
  // program changes.
  std::int64_t cambiato = 0;
  bool operator==(const VoceLavoro&) const = default;
};

class Lavori {
 public:
  // Reads nothing yet. A root that is not there is a root without jobs.
  explicit Lavori(std::string radice);
  ~Lavori();
  Lavori(const Lavori&) = delete;
  Lavori& operator=(const Lavori&) = delete;

  const std::string& Radice() const { return radice_; }
  std::string CartellaDi(const std::string& nome) const { return radice_ + "/" + nome; }

  // Looks again; true when the list is another one than before. What stays keeps its details. A
  // root that cannot be read is a RuntimeFailure, and the list stays.
  bool Guarda();
  // Newest first. Folders whose name begins with a full stop are no jobs.
  const std::vector<VoceLavoro>& Voci() const { return voci_; }

  // What is in a job, kept until one of its files has changed: looks at their times at each call. A
  // folder that has gone is a RuntimeFailure. The reference holds until the next call of Guarda.
  const Lavoro& Dettagli(const std::string& nome);
  // The same without looking again at a job that was looked at since the last Guarda.
  const Lavoro& DettagliGiaVisti(const std::string& nome);

 private:
  struct Memoria;
  const Lavoro& Rileggi(const std::string& nome, bool comunque);
  std::string radice_;
  std::vector<VoceLavoro> voci_;
  std::unique_ptr<Memoria> memoria_;
};

}  // namespace orm
