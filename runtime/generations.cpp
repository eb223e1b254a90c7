#include "runtime/generations.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <ctime>
#include <map>

#include "runtime/dates.h"
#include "runtime/failure.h"
#include "runtime/file_calls.h"
#include "runtime/numbers.h"
#include "runtime/replace.h"

namespace orm {
namespace {

constexpr std::array<std::string_view, 7> kEndings = {".DAP", ".DAG", ".PER", ".CFG",
                                                      ".DOC", ".RTF", ".VER"};
constexpr std::size_t kMostOfAName = 20;
constexpr std::size_t kMostBytes = 8U << 20;
// "2026-11-21_185240", and "-02" behind it where one second saw more than one save.
constexpr std::string_view kShape = "dddd-dd-dd_dddddd", kShapeOfMore = "dddd-dd-dd_dddddd-dd";
constexpr std::size_t kDay = 10;  // the length of its date

bool HasShape(std::string_view text, std::string_view shape) {
  return std::equal(text.begin(), text.end(), shape.begin(), shape.end(), [](char c, char wanted) {
    return wanted == 'd' ? c >= '0' && c <= '9' : c == wanted;
  });
}

std::string Now() {
  const std::time_t seconds = std::time(nullptr);
  std::tm at{};
  ::localtime_r(&seconds, &at);
  return Padded(at.tm_year + 1900, 4) + "-" + Padded(at.tm_mon + 1, 2) + "-" +
         Padded(at.tm_mday, 2) + "_" + Padded(at.tm_hour, 2) + Padded(at.tm_min, 2) +
         Padded(at.tm_sec, 2);
}

std::size_t DotOf(std::string_view nome) { return std::min(nome.rfind('.'), nome.size()); }

std::string FileOf(std::string_view nome, const std::string& quando) {
  const std::size_t dot = DotOf(nome);
  return std::string(nome.substr(0, dot)) + "." + quando + std::string(nome.substr(dot));
}

// A name in `storico` taken apart; nothing for what a person has put there.
std::optional<Generazione> Parse(const std::string& file) {
  const std::size_t dot = DotOf(file);
  const std::size_t before = dot == 0 ? std::string::npos : file.rfind('.', dot - 1);
  if (dot == file.size() || before == std::string::npos || before == 0) return std::nullopt;
  std::string quando = file.substr(before + 1, dot - before - 1);
  if (!HasShape(quando, kShape) && !HasShape(quando, kShapeOfMore)) return std::nullopt;
  return Generazione{file.substr(0, before) + file.substr(dot), std::move(quando), file, 0};
}

std::string StoricoOf(const WorkFolder& folder) { return folder.PathOf(kStorico); }

// `storico`, made where it is not there, with the rights of the folder that it belongs to. A link
// could lead anywhere: only a folder will do.
std::optional<std::string> MakeStorico(const WorkFolder& folder) {
  const std::string path = StoricoOf(folder);
  struct stat status {};
  if (::mkdir(path.c_str(), 0777) == 0) {
    if (::stat(folder.Path().c_str(), &status) == 0 &&
        ::chmod(path.c_str(), status.st_mode & 07777) != 0)
      return std::nullopt;  // a file system without rights
    return std::nullopt;
  }
  if (errno != EEXIST) return ReasonOf(errno);
  if (::lstat(path.c_str(), &status) != 0) return ReasonOf(errno);
  if (!S_ISDIR(status.st_mode)) return "Al posto della cartella \"storico\" c'è altro.";
  return std::nullopt;
}

void Forget(const WorkFolder& folder, const Generazione& generazione) {
  ::unlink((StoricoOf(folder) + "/" + generazione.file).c_str());
}

// The one of a file that is missed least, among `all`, newest first: the oldest that is not the
// first of its day, else the oldest; never the last one. `all.end()` where there is no other.
using Kept = std::vector<Generazione>;
Kept::iterator LeastMissed(Kept& all) {
  if (all.size() < 2) return all.end();
  for (std::size_t i = all.size() - 1; i-- > 1;)
    if (all[i].quando.substr(0, kDay) == all[i + 1].quando.substr(0, kDay))
      return all.begin() + static_cast<std::ptrdiff_t>(i);
  return all.end() - 1;
}

std::size_t BytesOf(const Kept& all) {
  std::size_t bytes = 0;
  for (const Generazione& one : all) bytes += one.bytes;
  return bytes;
}

void Thin(const WorkFolder& folder) {
  std::map<std::string, Kept> byName;
  for (Generazione& one : Generazioni(folder)) byName[one.nome].push_back(std::move(one));
  std::size_t bytes = 0;
  const auto drop = [&](Kept& all, Kept::iterator one) {
    Forget(folder, *one);
    bytes -= one->bytes;
    all.erase(one);
  };
  for (auto& [nome, all] : byName) bytes += BytesOf(all);
  for (auto& [nome, all] : byName)
    while (all.size() > kMostOfAName) drop(all, LeastMissed(all));
  while (bytes > kMostBytes) {
    Kept* heaviest = nullptr;  // of those that have more than their last one
    for (auto& [nome, all] : byName)
      if (all.size() > 1 && (heaviest == nullptr || BytesOf(all) > BytesOf(*heaviest)))
        heaviest = &all;
    if (heaviest == nullptr) return;
    drop(*heaviest, LeastMissed(*heaviest));
  }
}

std::string FreeName(const WorkFolder& folder, std::string_view nome, const Kept& all) {
  std::string now = Now();
  // The clock may have been set back; the order of the saves stays all the same.
  if (!all.empty() && all.front().quando.substr(0, kShape.size()) > now)
    now = all.front().quando.substr(0, kShape.size());
  std::string quando = now;
  for (int n = 2; n < 100 && !all.empty() && quando <= all.front().quando; ++n)
    quando = now + "-" + Padded(n, 2);
  return StoricoOf(folder) + "/" + FileOf(nome, quando);
}

}  // namespace

bool HaGenerazioni(std::string_view nome) {
  std::string ending(nome.substr(DotOf(nome)));
  for (char& c : ending) c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  return DotOf(nome) > 0 && std::count(kEndings.begin(), kEndings.end(), ending) > 0;
}

std::vector<Generazione> Generazioni(const WorkFolder& folder, std::string_view nome) {
  std::vector<std::string> names;
  Kept all;
  if (ListFolder(StoricoOf(folder), names) != 0) return all;
  for (const std::string& file : names) {
    auto one = Parse(file);
    struct stat status {};
    if (!one || (!nome.empty() && one->nome != nome)) continue;
    if (::lstat((StoricoOf(folder) + "/" + file).c_str(), &status) != 0) continue;
    if (!S_ISREG(status.st_mode)) continue;
    one->bytes = static_cast<std::size_t>(status.st_size);
    all.push_back(std::move(*one));
  }
  std::sort(all.begin(), all.end(), [](const Generazione& a, const Generazione& b) {
    return a.quando != b.quando ? a.quando > b.quando : a.nome < b.nome;
  });
  return all;
}

std::string LeggiGenerazione(const WorkFolder& folder, const Generazione& generazione) {
  return WorkFolder(StoricoOf(folder)).Read(generazione.file);
}

void RiportaGenerazione(const WorkFolder& folder, const Generazione& generazione) {
  folder.Replace(generazione.nome, LeggiGenerazione(folder, generazione));
}

std::optional<std::string> ConservaGenerazione(const WorkFolder& folder, std::string_view nome,
                                               const std::string& path, std::string_view contents,
                                               Durability durability) {
  if (auto reason = MakeStorico(folder)) return reason;
  const Kept all = Generazioni(folder, nome);
  const std::string target = FreeName(folder, nome, all);
  for (const Generazione& one : all) {
    if (one.bytes != contents.size() || LeggiGenerazione(folder, one) != contents) continue;
    // Kept once, under the last time that it was replaced.
    const std::string there = StoricoOf(folder) + "/" + one.file;
    if (&one != &all.front() && ::rename(there.c_str(), target.c_str()) != 0)
      return ReasonOf(errno);
    return std::nullopt;
  }
  BesideFile beside(StoricoOf(folder), contents, durability, path);
  if (beside.Error() != 0) return ReasonOf(beside.Error());
  if (const int error = beside.MoveTo(target)) return ReasonOf(error);
  Thin(folder);
  return std::nullopt;
}

}  // namespace orm
