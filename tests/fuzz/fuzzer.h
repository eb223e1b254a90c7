// What the fuzzers share: the law that stops them, the working folder, and what every fuzzer of a
// data file does.
#pragma once

#include <cmath>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/data_file.h"
#include "runtime/failure.h"
#include "runtime/generations.h"
#include "tests/temporary_folder.h"

namespace orm::fuzz {

// A format by its name, which is that of its folder in the corpus, and what is done with an input.
struct Format {
  std::string_view name;
  std::function<void(std::string_view input)> check;
};
using Formats = std::vector<Format>;
Formats TextFormats();   // what is typed or read whole
Formats FileFormats();   // data of the program
Formats TableFormats();  // tables kept by the user
Formats NoteFormats();   // data of the fee cases
Formats SavedFormats();  // what stands beside the data
Formats JobFormats();    // what the desk reads of others
Formats JsonFormats();   // a note for other programs

inline void Require(bool held, std::string_view law) {
  if (held) return;
  std::cerr << "NON VALE: " << law << std::endl;
  std::abort();
}

// The working folder of the run; TMPDIR in memory makes it quick. A file stands where the kept
// generations would, which have a format of their own: holding each input against twenty old ones
// would take most of the time.
inline const WorkFolder& Place() {
  static const TemporaryFolder place;
  static const WorkFolder folder = [] {
    place.Folder().Replace(kStorico, "", Durability::Remakeable);
    return place.Folder();
  }();
  return folder;
}

inline void Put(const std::string& name, std::string_view bytes) {
  Place().Replace(name, bytes, Durability::Remakeable);
}

// Collects the fields of a format instead of writing them.
class Values {
 public:
  template <class... T>
  void Line(Field<T>... fields) {
    (Take(fields.value), ...);
  }
  // Numbers may lose what lies behind their 15 digits.
  bool operator==(const Values& other) const {
    return texts_ == other.texts_ &&
           std::equal(numbers_.begin(), numbers_.end(), other.numbers_.begin(),
                      other.numbers_.end(),
                      [](double a, double b) { return std::fabs(b - a) <= 1e-14 * std::fabs(a); });
  }

 private:
  void Take(const std::string& text) { texts_.push_back(text); }
  void Take(double number) { numbers_.push_back(number); }
  std::vector<std::string> texts_;
  std::vector<double> numbers_;
};

// Lays the input down as the file and lets the program's own routine read it: values, or a failure
// that names file and field and leaves the file; what was read and written again reads the same.
// `fields` hands what was read last to the Values. True when the file could be read.
template <class Read, class Fields, class Write>
bool CheckFile(const std::string& name, std::string_view input, Read&& read, Fields&& fields,
               Write&& write) {
  const auto values = [&] {
    read();
    Values all;
    fields(all);
    return all;
  };
  Put(name, input);
  Values first;
  try {
    first = values();
  } catch (const RuntimeFailure& failure) {
    Require(failure.File() == name, "il messaggio nomina il file");
    Require(!failure.Field().empty(), "il messaggio nomina il campo");
    Require(Place().Read(name) == input, "il file resta com'era");
    return false;
  }
  write();
  const std::string written = Place().Read(name);
  Require(values() == first, "i dati letti e riscritti si rileggono uguali");
  write();
  Require(Place().Read(name) == written, "il file riscritto resta uguale");
  return true;
}

}  // namespace orm::fuzz
