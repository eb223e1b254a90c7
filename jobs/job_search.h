// Search in all jobs by client, subject, case and net amount, in slices, so that a window stays
// alive while it goes on.
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "jobs/job_list.h"

namespace orm {

// A text as search compares it: small letters without accents, blanks in a row as one.
std::string SenzaAccenti(std::string_view utf8);

// What a person has typed: words in any order. A note is found when each word is part of its
// client, subject, case (code or name) or job's name, or is its net amount: "12.500,00", "12500",
// "12500,00"; an amount without decimals is met by its first figures, from the third on.
class Richiesta {
 public:
  explicit Richiesta(std::string_view testo);
  bool Vuota() const { return parole_.empty(); }
  bool Trova(const Lavoro& lavoro, const ParcellaDelLavoro& parcella) const;
  // By its name alone: a job without notes is found too.
  bool TrovaNome(const std::string& nome) const;

 private:
  struct Parola {
    std::string testo;   // as SenzaAccenti gives it
    std::string intero;  // of an amount: its figures before the comma
    std::string cents;   // its two decimals; empty: none were typed
  };
  static bool EImporto(const Parola& parola, const ParcellaDelLavoro& parcella);
  std::vector<Parola> parole_;
};

struct LavoroTrovato {
  std::string nome;
  std::vector<std::size_t> parcelle;  // places in Lavoro::parcelle; empty: found by its name
};

// One search through `lavori`, newest first; it does not outlive them. After Lavori::Guarda has
// found a change a new search is due. A job that cannot be read is passed over.
class Ricerca {
 public:
  Ricerca(Lavori& lavori, std::string_view testo);

  // Goes on for about that long; true when the search has ended. A search of nothing finds all
  // jobs, and reads none.
  bool Prosegui(std::chrono::milliseconds tempo);
  // What was found so far; grows at the end only.
  const std::vector<LavoroTrovato>& Trovati() const { return trovati_; }
  std::size_t Esaminati() const { return prossimo_; }

 private:
  void Esamina(const std::string& nome);
  Lavori& lavori_;
  Richiesta richiesta_;
  std::size_t prossimo_ = 0;
  std::vector<LavoroTrovato> trovati_;
};

}  // namespace orm
