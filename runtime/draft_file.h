// What a person has typed and not saved, in a file of its own, so that it outlives the program.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/folder.h"

namespace orm {

// It lies hidden in the folder that it belongs to; where that has gone or cannot be written, among
// the user's own files. The program that writes it holds it, so that another one does not take it
// for a leftover and keeps its own beside. None of this may stop a person: no routine fails.
class DraftFile {
 public:
  // `about`: what is being written, a file's name or a word.
  DraftFile(WorkFolder folder, std::string about);
  ~DraftFile();
  DraftFile(const DraftFile&) = delete;
  DraftFile& operator=(const DraftFile&) = delete;

  // What a program that is gone has left, and this one takes over, if it is `wanted`; what is not
  // stays where it is.
  std::optional<std::string> TakeOver(const std::function<bool(std::string_view)>& wanted =
                                          [](std::string_view) { return true; });
  // Replaces the draft, unless it is the one that was kept last. False when it can be kept nowhere.
  bool Keep(std::string_view bytes);
  // Removes what was taken over or kept.
  void Forget();

 private:
  struct Place {
    WorkFolder folder;
    std::string name;
    std::string Path() const { return folder.PathOf(name); }
  };
  std::vector<Place> Places(int number) const;
  bool PutAt(const Place& place, std::string_view bytes);
  void Hold(const Place& place);

  WorkFolder folder_;
  std::string about_, whole_;
  int number_ = 0;  // of the drafts about the same thing; 0: none is ours yet
  std::optional<std::string> kept_;
  int held_ = -1;  // the open draft, locked
};

}  // namespace orm
