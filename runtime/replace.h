// One file takes the place of another. The new contents are written under a name of their own in
// the same folder, checked and renamed: whatever happens, the old name holds the old contents or
// the new ones, whole.
#pragma once

#include <string>
#include <string_view>

#include "runtime/folder.h"

namespace orm {

// A file that waits beside the one that it will replace. It goes with this object unless it has
// taken its place.
class BesideFile {
 public:
  // Creates a name that no other program has, and writes to it. With `like`, the path of an older
  // file, the new one gets its group, access lists and mode, as far as the file system lets us.
  BesideFile(const std::string& folder, std::string_view bytes, Durability durability,
             const std::string& like);
  ~BesideFile();
  BesideFile(const BesideFile&) = delete;
  BesideFile& operator=(const BesideFile&) = delete;

  // The error of writing; 0 when the file is whole.
  int Error() const { return error_; }
  // 0 or the error.
  int MoveTo(const std::string& target);

 private:
  int Write(std::string_view bytes, Durability durability, const std::string& like);
  std::string path_;
  int error_ = 0;
};

// A name for what waits beside, which no two programs find at once.
std::string FreshBesideName();

// Names of files beside that a killed program may leave; nobody else has such names.
bool IsBesideName(std::string_view name);

// Removes those of a folder that no running save can be at work on any more; other things than
// files that bear such names are left to who makes them, with the same delay.
void ClearLeftovers(const std::string& folder);
inline constexpr long kLongestSave = 600;  // seconds; what waits beside for longer was left

}  // namespace orm
