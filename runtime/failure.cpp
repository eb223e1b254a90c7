#include "runtime/failure.h"

#include <utility>

#include "runtime/numbers.h"

namespace orm {

RuntimeFailure::RuntimeFailure(std::string reason) : reason_(std::move(reason)) { Compose(); }

RuntimeFailure& RuntimeFailure::AtFile(const std::string& name) {
  if (file_.empty()) file_ = name;
  Compose();
  return *this;
}

RuntimeFailure& RuntimeFailure::AtLine(int number) {
  if (line_ == 0) line_ = number;
  Compose();
  return *this;
}

RuntimeFailure& RuntimeFailure::AtField(const std::string& name) {
  if (field_.empty()) field_ = name;
  Compose();
  return *this;
}

void RuntimeFailure::Compose() {
  text_ = reason_;
  if (!file_.empty()) text_ += "\nFile : " + file_;
  if (line_ > 0) text_ += "\nRiga : " + NumberText(line_);
  if (!field_.empty()) text_ += "\nCampo : " + field_;
}

}  // namespace orm
