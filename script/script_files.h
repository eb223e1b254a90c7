// The files of a script: those that it lays down in the working folder, and those that it holds
// against what it expects.
#pragma once

#include <map>
#include <string>

#include "runtime/folder.h"

namespace orm {

class ScriptFiles {
 public:
  // `home`: where the script stands, with its expected files; `work`: the working folder in which
  // the program runs. With `update` expected files are rewritten instead of compared.
  ScriptFiles(WorkFolder home, WorkFolder work, bool update);

  const WorkFolder& Work() const { return work_; }
  std::string PathBesideScript(const std::string& name) const { return home_.PathOf(name); }

  void Copy(const std::string& name, const std::string& as);
  void Write(const std::string& name, const std::string& text);
  void Remove(const std::string& name) { work_.Remove(name); }

  // Each gives back what does not hold, in Italian; an empty text when it does.
  std::string CompareFile(const std::string& name, const std::string& expectedName);
  std::string Compare(const std::string& name, const std::string& actual,
                      const std::string& expectedName);
  std::string Same(const std::string& name) const;  // as it was at the last Snapshot
  std::string Absent(const std::string& name) const;

  void Snapshot();

 private:
  WorkFolder home_, work_;
  bool update_;
  std::map<std::string, std::string> snapshot_;
};

}  // namespace orm
