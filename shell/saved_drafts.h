// The drafts of forms outlive the program: in a file while it runs, offered at the next start in
// the same folder.
#pragma once

#include <string>
#include <string_view>

#include "dialogs/form_values.h"
#include "runtime/draft_file.h"

namespace orm {

// As a data file: for each draft its name with the numbers of values and hidden texts, then those.
// A text that is damaged is a RuntimeFailure.
std::string DraftsText(const Drafts::All& drafts);
Drafts::All ReadDrafts(std::string_view bytes);

class SavedDrafts {
 public:
  SavedDrafts(Drafts& drafts, WorkFolder folder, std::string about)
      : drafts_(drafts), file_(std::move(folder), std::move(about)) {}

  // Takes what an earlier run has left; true when there was something. A damaged file stays unread.
  bool Load();
  // What has been typed and not confirmed by now. Lets no failure out, and costs nothing when
  // nothing is new.
  void Keep();
  // At a good end: what was left without confirming was left on purpose.
  void Forget() { file_.Forget(); }

 private:
  Drafts& drafts_;
  DraftFile file_;
};

}  // namespace orm
