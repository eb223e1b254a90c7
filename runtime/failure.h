// The one run-time failure of the program.
//
// A failure is what the user could not have avoided by answering a dialog: a short file, an
// overflow, an index out of range, a file that is missing or cannot be written. It is thrown on
// the ground floor, gains its place on the way up, and is caught in one place around each menu
// command, where it becomes a message. What was on disk before stays as it was.
#pragma once

#include <exception>
#include <string>

namespace orm {

class RuntimeFailure : public std::exception {
 public:
  // `reason`: an Italian sentence. Places are added by AtFile, AtLine and AtField.
  explicit RuntimeFailure(std::string reason);

  // Each keeps a place that is already known: the innermost one is the most exact.
  RuntimeFailure& AtFile(const std::string& name);
  RuntimeFailure& AtLine(int number);
  RuntimeFailure& AtField(const std::string& name);

  const std::string& Reason() const { return reason_; }
  const std::string& File() const { return file_; }
  const std::string& Field() const { return field_; }
  int Line() const { return line_; }

  // The whole message for a person: reason, then file, line and field as far as they are known.
  const std::string& Text() const { return text_; }
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  void Compose();
  std::string reason_, file_, field_, text_;
  int line_ = 0;
};

}  // namespace orm
