// Whether there is a screen to show windows on.
#pragma once

namespace orm {

// How Qt starts, chosen before the application is made. Without a screen Qt would end the process
// with no word for the user, so it is given a second choice that always starts. A platform that the
// user has chosen holds.
class PlatformChoice {
 public:
  explicit PlatformChoice(bool needsScreen = true);
  // Once the application is there: nobody sees its windows, and nobody has asked for that. The
  // programs that this one starts make a choice of their own.
  bool IsUnseen();

 private:
  bool ours_ = false;
};

}  // namespace orm
