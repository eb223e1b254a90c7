// What a person has put into a form, to be put back when the form is left without confirming, or
// into another form of the same kind; and the drafts that a run of the program keeps of it.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "dialogs/form.h"

namespace orm {

class FormValues {
 public:
  FormValues() = default;
  explicit FormValues(const Form& form);
  // What each control holds, in the order of reading. A list has the place of its item, that of
  // none where the program has chosen it, -1 for none.
  using Value = std::variant<bool, int, double, Date, std::string>;
  using Values = std::vector<std::pair<std::string, Value>>;  // by the names of the controls
  // Of an earlier run of the program.
  FormValues(Values values, std::vector<std::string> hidden);
  bool operator==(const FormValues&) const = default;
  // Events follow as for any other change. What no control of the form can hold stays out.
  void PutInto(Form& form) const;

  const Values& All() const { return values_; }
  const std::vector<std::string>& Hidden() const { return hidden_; }

 private:
  Values values_;
  std::vector<std::string> hidden_;  // what no control holds
};

// What a person typed into forms and left without confirming, kept while the program runs: a slip
// (Escape, the window button, the end of a list) costs nothing. A form comes up with the values
// that it is given, and its button of drafts puts in what it was left with.
class Drafts {
 public:
  // While it lives, the forms shown are about `what`, inside of what they were about before: a
  // case, a lot, a period. A draft belongs to a form by its name and title, and to what it is
  // about.
  class Subject {
   public:
    Subject(Drafts& drafts, const std::string& what);
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    ~Subject();

   private:
    Drafts& drafts_;
    const std::size_t length_;
  };

  // The row of a list that the innermost subject stands for is dropped: what its forms were left
  // with becomes their drafts, even what was confirmed, and where the row had been stored all of
  // it.
  void SubjectDropped(bool stored);

  // A form on the screen, from its opening to its leaving, however that comes about.
  class Showing {
   public:
    Showing(Drafts& drafts, Form& form);
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;
    ~Showing();

   private:
    friend class Drafts;
    void KeepPresent() const;
    Drafts& drafts_;
    Form& form_;
    const std::string key_;
    const FormValues given_;
  };

  // All drafts, each under its form and what it is about.
  using All = std::map<std::string, FormValues>;
  All& Kept() { return kept_; }
  // The same with what stands in the forms on the screen, which is the newer.
  All WithOpenForms() const;
  // What the form, which is on the screen, holds becomes its draft: other data take its place.
  void KeepPresent(const Form& form);

 private:
  struct Left {
    std::string key;
    FormValues values;
    bool changed;
  };
  std::string about_;
  All kept_;
  std::vector<Left> left_;           // the forms of the outermost subject, in their order
  std::vector<std::size_t> begins_;  // where in these each subject begins
  std::vector<const Showing*> open_;
};

}  // namespace orm
