// What every fuzzer of a file format does: lays the input down as the file, lets the program's own
// routine read it, and holds it to the law: values or a failure that names file and field, and what
// was read and written again reads the same.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "dialogs/player.h"
#include "runtime/data_file.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"

namespace orm::fuzz {

inline void Require(bool held, std::string_view law) {
  if (held) return;
  std::cerr << "NON VALE: " << law << std::endl;
  std::abort();
}

// A working folder in memory where the system has one, gone when the fuzzer ends.
class FuzzFolder {
 public:
  FuzzFolder() {
    std::string pattern = std::filesystem::exists("/dev/shm") ? "/dev/shm/orm2002-fuzz-XXXXXX"
                                                              : "/tmp/orm2002-fuzz-XXXXXX";
    Require(::mkdtemp(pattern.data()) != nullptr, "una cartella per la prova");
    folder_ = WorkFolder(pattern);
  }
  ~FuzzFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_.Path(), ignored);
  }
  FuzzFolder(const FuzzFolder&) = delete;
  FuzzFolder& operator=(const FuzzFolder&) = delete;

  const WorkFolder& Folder() const { return folder_; }
  void Put(std::string_view name, std::string_view bytes) const {
    const int file =
        ::open(folder_.PathOf(name).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    Require(file >= 0 &&
                ::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()),
            "il file della prova");
    ::close(file);
  }

 private:
  WorkFolder folder_;
};

// Nobody before the screen: boxes are taken as read, forms are left.
class Nobody : public Player {
 public:
  void Show(Form&) override {}
  Answer Ask(const MessageBox&) override { return Answer::Ok; }
  std::optional<std::string> ChooseFile(const FileChoice&) override { return std::nullopt; }
  void StartProgram(const std::string&, const std::string&) override {}
  bool ProgramExists(const std::string&) override { return true; }
  OutsidePrograms DefaultPrograms() override { return {"a", "b", "c", "d"}; }
  ScreenSize Screen() override { return {}; }
  Date Today() override { return {2002, 3, 15}; }
};

// Collects the fields of a format instead of writing them.
class Values {
 public:
  template <class... T>
  void Line(Field<T>... fields) {
    (Take(fields.value), ...);
  }
  // Numbers may lose what lies behind their 15 digits.
  bool operator==(const Values& other) const {
    if (texts_ != other.texts_ || numbers_.size() != other.numbers_.size()) return false;
    for (std::size_t i = 0; i < numbers_.size(); ++i)
      if (std::fabs(numbers_[i] - other.numbers_[i]) > 1e-14 * std::fabs(numbers_[i])) return false;
    return true;
  }

 private:
  void Take(const std::string& text) { texts_.push_back(text); }
  void Take(double number) { numbers_.push_back(number); }
  std::vector<std::string> texts_;
  std::vector<double> numbers_;
};

// `read` gives the Values of the file `name`; `write` writes what was read last.
template <class Read, class Write>
void CheckFile(const FuzzFolder& place, const std::string& name, std::string_view input,
               Read&& read, Write&& write) {
  place.Put(name, input);
  Values first;
  try {
    first = read();
  } catch (const RuntimeFailure& failure) {
    Require(failure.File() == name, "il messaggio nomina il file");
    Require(!failure.Field().empty(), "il messaggio nomina il campo");
    Require(place.Folder().Read(name) == input, "il file resta com'era");
    return;
  }
  write();
  const std::string written = place.Folder().Read(name);
  Require(read() == first, "i dati letti e riscritti si rileggono uguali");
  write();
  Require(place.Folder().Read(name) == written, "il file riscritto resta uguale");
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace orm::fuzz
