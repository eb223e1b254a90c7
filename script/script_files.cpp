#include "script/script_files.h"

#include <algorithm>
#include <filesystem>
#include <utility>
#include <vector>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace orm {
namespace {

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines(1);
  for (const char c : text) {
    if (c == '\n')
      lines.emplace_back();
    else if (c != '\r')
      lines.back() += c;
  }
  return lines;
}

// The place of the first line in which two texts differ, with both lines.
std::string FirstDifference(const std::string& expected, const std::string& actual) {
  const auto a = Lines(expected);
  const auto b = Lines(actual);
  for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
    const std::string left = i < a.size() ? a[i] : "(fine)";
    const std::string right = i < b.size() ? b[i] : "(fine)";
    if (left != right)
      return "riga " + NumberText(static_cast<double>(i + 1)) + "\n  atteso  : " + left +
             "\n  ottenuto: " + right;
  }
  return "le righe sono uguali, non i fine riga";
}

// Where a file that a script names stands: in its folder, or in the nearest one above that has it,
// or that has it among what an installation brings. The script's folder when nobody has it.
WorkFolder FolderWith(const std::string& name, const WorkFolder& home) {
  namespace fs = std::filesystem;
  for (fs::path above = fs::absolute(home.Path()); above.has_relative_path();
       above = above.parent_path())
    for (const char* place : {"", "data", "data/sample"})
      if (fs::exists(above / place / name)) return WorkFolder((above / place).string());
  return home;
}

}  // namespace

ScriptFiles::ScriptFiles(WorkFolder home, WorkFolder work, bool update)
    : home_(std::move(home)), work_(std::move(work)), update_(update) {}

void ScriptFiles::Copy(const std::string& name, const std::string& as) {
  work_.Replace(as, FolderWith(name, home_).Read(name));
}

void ScriptFiles::Write(const std::string& name, const std::string& text) {
  std::string bytes;
  for (const char c : ToWindows1252(text))
    bytes += c == '\n' ? std::string("\r\n") : std::string(1, c);
  work_.Replace(name, bytes);
}

std::string ScriptFiles::CompareFile(const std::string& name, const std::string& expectedName) {
  return Compare(name, work_.Read(name), expectedName);
}

std::string ScriptFiles::Compare(const std::string& name, const std::string& actual,
                                 const std::string& expectedName) {
  const WorkFolder place = FolderWith(expectedName, home_);
  const bool exists = place.Exists(expectedName);
  const std::string expected = exists ? place.Read(expectedName) : std::string();
  const std::string received = expectedName + ".received";
  if (exists && expected == actual) {
    home_.Remove(received);
    return {};
  }
  if (update_) {
    home_.Replace(expectedName, actual);
    return {};
  }
  home_.Replace(received, actual);
  return name + (exists ? " diverso da " : ": manca il file atteso ") + expectedName +
         (exists ? ", " + FirstDifference(expected, actual) : "");
}

std::string ScriptFiles::Same(const std::string& name) const {
  const auto before = snapshot_.find(name);
  const bool exists = work_.Exists(name);
  if (exists != (before != snapshot_.end()) || (exists && work_.Read(name) != before->second))
    return "il file " + name + " è cambiato";
  return {};
}

std::string ScriptFiles::Absent(const std::string& name) const {
  return work_.Exists(name) ? "il file " + name + " c'è" : "";
}

void ScriptFiles::Snapshot() {
  snapshot_.clear();
  for (const std::string& name : work_.Names()) snapshot_[name] = work_.Read(name);
}

}  // namespace orm
