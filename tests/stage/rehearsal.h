// A note that a script has typed in, typed in again by somebody who slips in every window of it:
// each button but the right one, then Escape. After a slip that leaves a window he closes all that
// comes and begins again. What was typed must then stand in the window, stored, or be offered by
// its button of drafts; and the files must become those of the person who never slipped.
#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/stage/key_hand.h"

namespace orm {

// What a person reads in the entries of a form that can be used, in their order.
using Entries = std::vector<std::pair<std::string, std::string>>;

// A form of a chain: the presses that led out of it or to another form, and what stood in it then.
struct PlayedForm {
  struct Step {
    Entries entries;
    std::string button;  // or "Esc"
  };
  std::string name;
  std::vector<Step> steps;
  bool Leaves(std::string_view button) const { return steps.back().button == button; }
  // In the rehearsal: confirmed, or left with values that are not those that it had come up with.
  bool confirmed = false, draft = false;
};

struct PlayedChain {
  std::vector<PlayedForm> forms;
  std::vector<std::pair<std::string, Answer>> messages;
  bool WholeNote() const;  // down to the agreements
  bool Changes() const;    // a stored one
};

// The hand of the script's own run, which takes the chain down.
class NotingHand : public HastyHand {
 public:
  NotingHand(FormDialog& dialog, DesktopStageOptions options, PlayedChain& chain);
  std::string Press(Button& button) override;
  void CloseByWindow() override;

 private:
  PlayedChain& chain_;
  const std::size_t place_;
};

class Rehearsal {
 public:
  explicit Rehearsal(PlayedChain chain) : chain_(std::move(chain)), changes_(chain_.Changes()) {}

  // Around each choice of the command, until nothing is left to slip in.
  void Begin();
  bool Ended() const { return !leaving_ && at_ == chain_.forms.size(); }
  // The slip ended the command before any form of the case.
  bool LeftAtTheStart() const;
  // The slip was a button in a form about stored data, which it may have taken away. Who brings
  // them back from `storico` loses what this run has confirmed.
  bool LeftStoredRow() const;
  void BroughtBack();
  const std::string& Fault() const { return fault_; }  // the first; empty for none

  void Meet(FormDialog& dialog);
  Answer Meet(const MessageBox& box) const;

 private:
  PlayedForm* Expected(FormDialog& dialog, KeyHand& hand);
  void TakeUp(PlayedForm& form, FormDialog& dialog, KeyHand& hand, const Entries& given);
  void Fill(const Entries& entries, FormDialog& dialog, KeyHand& hand);
  bool SlipOut(const PlayedForm::Step& step, FormDialog& dialog, KeyHand& hand);
  void Tell(const FormDialog& dialog, const std::string& fault);

  PlayedChain chain_;
  std::size_t at_ = 0, slip_ = 0;  // the form to come; that in which he slips
  std::set<std::string> slips_;    // made in that form: buttons, and "Esc"
  bool leaving_ = false, stray_ = false, byButton_ = false;
  const bool changes_;
  std::vector<std::size_t> fresh_;  // forms confirmed in this run
  std::string fault_;
};

}  // namespace orm
