// One program at a time on a working folder.
#pragma once

#include "runtime/folder.h"

namespace orm {

// The lock is of the running process: it goes with it, however it ends, and leaves no file behind.
// Whoever holds the folder also clears what killed programs have left beside its files.
class FolderLock {
 public:
  explicit FolderLock(const WorkFolder& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // False when another program holds the folder. A folder that cannot be locked at all (a file
  // system without locks) counts as held by us: better a missing guard than no program.
  bool Held() const { return held_; }

  // False where a program on another computer would not see the lock, or there is none: a folder
  // of the network.
  bool Certain() const { return certain_; }

 private:
  int descriptor_ = -1;
  bool held_ = false;
  bool certain_ = false;
};

// Whether a program holds the folder, without disturbing anyone who is about to.
bool FolderIsHeld(const std::string& folder);

}  // namespace orm
