// The working folder: all data, configuration and report files of the program lie in it and are
// opened by bare name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orm {

// How much a file's contents matter when it is replaced.
enum class Durability {
  Flushed,    // data: on the disk before the old contents go
  Remakeable  // a report: whole or absent, but not worth waiting for the disk
};

class WorkFolder {
 public:
  // No file of the program comes near this size; a greater one is refused unread.
  static constexpr std::size_t kLargestFile = 8U << 20;

  explicit WorkFolder(std::string path = ".");

  const std::string& Path() const { return path_; }
  std::string PathOf(std::string_view name) const;

  // A name that cannot be looked at (a disk error) is a RuntimeFailure, not an absent file.
  bool Exists(std::string_view name) const;
  std::vector<std::string> Names() const;  // sorted

  // All bytes of a file. A file that is missing, unreadable or too large is a RuntimeFailure that
  // names it.
  std::string Read(std::string_view name) const;

  // Replaces a file or creates it: the bytes are written beside it, checked, flushed and renamed
  // into place, with the rights of the old file. Whatever happens, the name holds the old contents
  // or the new ones, whole. Any error is a RuntimeFailure that names the file, and nothing is left
  // beside it; the old contents stay, but for the very last step, the flush of the folder, which
  // fails with the new ones in place and says so.
  void Replace(std::string_view name, std::string_view bytes,
               Durability durability = Durability::Flushed) const;

  void Remove(std::string_view name) const;  // an absent file is no error

 private:
  std::string path_;
};

// A file beyond the size that the system allows is an error to be told like any other; without this
// call, made once by each program, it ends the process.
void TellFileSizeErrors();

// Holds a folder for one program at a time. The lock is of the running process: it goes with it,
// however it ends, and leaves no file behind.
class FolderLock {
 public:
  explicit FolderLock(const WorkFolder& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  // False when another program holds the folder. A folder that cannot be locked at all (a file
  // system without locks) counts as held by us: better a missing guard than no program.
  bool Held() const { return held_; }

 private:
  int descriptor_ = -1;
  bool held_ = false;
};

}  // namespace orm
