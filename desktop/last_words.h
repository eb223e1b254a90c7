// A program that is ended from outside: by a signal, the end of the session, a screen that breaks
// off. What was typed and not saved is kept then, and every few seconds besides, for the ends that
// give no warning.
#pragma once

#include <QObject>
#include <functional>

namespace orm {

// One in a program.
class LastWords : public QObject {
 public:
  static constexpr int kEveryMilliseconds = 2000;

  // `keep` costs nothing when there is nothing new, and lets no failure out.
  explicit LastWords(std::function<void()> keep);
  ~LastWords() override;

 private:
  static void AtExit();
  void Listen();

  std::function<void()> keep_;
};

}  // namespace orm
