// What has been written in the viewer and not saved outlives its window (desktop/last_words.h).
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "desktop/viewer/file.h"
#include "runtime/draft_file.h"

class QWidget;

namespace orm {

class ViewerPage;

class UnsavedText {
 public:
  explicit UnsavedText(ViewerPage& page) : page_(page) {}

  // From now on the page shows this file.
  void Follow(const FilePlace& place);
  // Asks whether a text that an earlier window has left comes back, over that of the file, as a
  // change that can be undone. Without an answer it does.
  bool ComesBack(QWidget* window);
  // The text while it differs from what was saved last; else nothing is kept.
  void Keep();
  void Forget();

 private:
  ViewerPage& page_;
  std::unique_ptr<DraftFile> draft_;
};

}  // namespace orm
