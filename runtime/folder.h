// The working folder: all data, configuration and report files of the program lie in it and are
// opened by bare name.
#pragma once

#include <memory>
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

  // A name that cannot be looked at (a disk error), a link that leads nowhere and a folder that has
  // gone are RuntimeFailures, not an absent file.
  bool Exists(std::string_view name) const;
  std::vector<std::string> Names() const;  // of files, sorted

  // All bytes of a file. A file that is missing, unreadable or too large is a RuntimeFailure that
  // names it.
  std::string Read(std::string_view name) const;

  // Replaces a file or creates it: the bytes are written beside it, checked, flushed and renamed
  // into place, with group, access lists and mode of the old file; a link stays and its file is
  // replaced. Whatever happens, the name holds the old contents or the new ones, whole. Any error
  // is a RuntimeFailure that names the file, and nothing is left beside it; the old contents stay,
  // but for the very last step, the flush of the folder, which fails with the new ones in place and
  // says so. Data, settings and reports that are replaced stay in `storico`
  // (runtime/generations.h), and are refused when they are too large to be read again.
  void Replace(std::string_view name, std::string_view bytes,
               Durability durability = Durability::Flushed) const;

  void Remove(std::string_view name) const;  // an absent file is no error

  // Why what a save replaced could not be kept in `storico`: told once, the first time of a run.
  // Empty when there is nothing to tell.
  std::string TakeWarning() const;

 private:
  void Keep(std::string_view name, const std::string& target, std::string_view bytes,
            Durability durability) const;

  std::string path_;
  struct Untold {
    std::string warning;
    bool known = false;
  };
  std::shared_ptr<Untold> untold_;  // of all copies of this folder
};

// A file beyond the size that the system allows is an error to be told like any other; without this
// call, made once by each program, it ends the process.
void TellFileSizeErrors();

}  // namespace orm
