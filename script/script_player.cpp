#include "script/script_player.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "script/form_statements.h"
#include "shell/shell.h"

namespace orm {
namespace {

std::optional<Answer> AnswerOf(const std::string& word) {
  if (word == "ok") return Answer::Ok;
  if (word == "cancel") return Answer::Cancel;
  if (word == "yes") return Answer::Yes;
  if (word == "no") return Answer::No;
  return std::nullopt;
}

bool Offers(MessageBox::Buttons buttons, Answer answer) {
  switch (buttons) {
    case MessageBox::Buttons::Ok:
      return answer == Answer::Ok;
    case MessageBox::Buttons::OkCancel:
      return answer == Answer::Ok || answer == Answer::Cancel;
    case MessageBox::Buttons::YesNo:
      return answer == Answer::Yes || answer == Answer::No;
    case MessageBox::Buttons::YesNoCancel:
      return answer != Answer::Ok;
  }
  return false;
}

}  // namespace

ScriptPlayer::ScriptPlayer(std::vector<Statement> script, WorkFolder scriptFolder,
                           WorkFolder folder, ScriptOptions options)
    : script_(std::move(script)),
      files_(std::move(scriptFolder), std::move(folder), options.update),
      options_(options) {}

void ScriptPlayer::Fail(int line, std::string text) {
  if (!mismatch_) mismatch_ = Mismatch{line, std::move(text)};
}

void ScriptPlayer::Require(const Statement& s, std::string objection) {
  if (!objection.empty()) Fail(s.line, std::move(objection));
}

const Statement* ScriptPlayer::Next() const {
  return at_ < script_.size() ? &script_[at_] : nullptr;
}

int ScriptPlayer::Line() const {
  if (script_.empty()) return 0;
  return at_ < script_.size() ? script_[at_].line : script_.back().line;
}

// ---------------------------------------------------------------- outside of forms

std::optional<Mismatch> ScriptPlayer::Play(const StageBuilder& build) {
  const std::unique_ptr<Stage> stage = build(*this, files_.Work());
  Shell shell(stage->People(), files_.Work());
  const bool startsItself = std::any_of(script_.begin(), script_.end(),
                                        [](const Statement& s) { return s.Verb() == "start"; });
  if (!startsItself) shell.Load();
  stage_ = stage.get();
  window_ = &shell;
  while (!mismatch_ && Next() != nullptr) PlayOutside(*stage, shell);
  return mismatch_;
}

void ScriptPlayer::PlayOutside(Stage& stage, MainWindow& window) {
  const Statement statement = *Next();
  ++at_;
  try {
    if (PlayAnywhere(statement)) return;
    if (statement.Verb() == "start") {
      settled_ = true;
      if (!window.Load()) return;
      if (statement.words.size() > 1)
        static_cast<Shell&>(window).PreparaCartella(
            files_.PathBesideScript(statement.words[1].text));
      stage.Raise(window);
      window.FirstActivation();
    } else if (statement.Verb() == "menu") {
      ChooseCommand(statement, stage, window);
    } else {
      Fail(statement.line, "istruzione rimasta quando il comando è finito: " + statement.Verb());
    }
  } catch (const RuntimeFailure& failure) {
    Fail(statement.line, failure.Text());
  }
}

void ScriptPlayer::ChooseCommand(const Statement& statement, Stage& stage, MainWindow& window) {
  // Settings that the script has laid down count as if they had been there at the start.
  if (!settled_) static_cast<Shell&>(window).ReadSettings();
  settled_ = true;
  files_.Snapshot();
  started_.clear();
  stage.Raise(window);
  const std::string& command = statement.words[1].text;
  const std::string objection = stage.Choose(window, command);
  if (!objection.empty()) Fail(statement.line, command + " : " + objection);
}

bool ScriptPlayer::PlayAnywhere(const Statement& s) {
  const auto& w = s.words;
  const std::string& verb = s.Verb();
  if (verb == "today") {
    const auto day = ParseDate(w[1].text);
    if (!day) Fail(s.line, "data errata");
    today_ = day.value_or(today_);
  } else if (verb == "screen") {
    screen_.width = static_cast<int>(ParseNumber(w[1].text).value_or(0));
    screen_.height = static_cast<int>(ParseNumber(w[2].text).value_or(0));
  } else if (verb == "copy") {
    files_.Copy(w[1].text, w.size() == 4 ? w[3].text : w[1].text);
  } else if (verb == "write") {
    files_.Write(w[1].text, w[2].text);
  } else if (verb == "remove") {
    files_.Remove(w[1].text);
  } else if (verb == "starts") {
    Starts(s);
  } else if (verb == "compare") {
    Require(s, files_.CompareFile(w[1].text, w.size() == 4 ? w[3].text : w[1].text));
  } else if (verb == "help") {
    stage_->AskHelp(*window_);
  } else if (verb == "same") {
    Require(s, files_.Same(w[1].text));
  } else if (verb == "absent") {
    Require(s, files_.Absent(w[1].text));
  } else {
    return false;
  }
  return true;
}

void ScriptPlayer::Starts(const Statement& s) {
  if (started_.empty()) return Fail(s.line, "il comando non ha avviato nessun programma");
  const auto [program, argument] = started_.front();
  started_.pop_front();
  if (program != s.words[1].text || argument != s.words[2].text)
    Fail(s.line, "avviato " + Quoted(program) + " " + Quoted(argument));
}

// ---------------------------------------------------------------- what the program shows

void ScriptPlayer::MeetForm(Form& form, FormHand& hand) {
  if (!mismatch_) {
    const Statement* next = Next();
    if (next == nullptr || next->Verb() != "dialog" || next->words[1].text != form.Name()) {
      Fail(Line(), "appare la finestra " + form.Name());
    } else {
      ++at_;
    }
  }
  while (!mismatch_ && form.IsOpen()) {
    if (Next() == nullptr) {
      Fail(Line(), "la finestra " + form.Name() + " resta aperta");
      break;
    }
    const Statement statement = *Next();
    ++at_;
    // A failure that an event of the form ends in is the program's own, and goes on to its menu.
    PlayInForm(statement, form, hand);
  }
  if (mismatch_) {
    form.Close();
    // A chain of forms that waits for a given answer would never end: the script has failed anyway.
    if (++shownAfterMismatch_ > 300) {
      std::cerr << "riga " << mismatch_->line << ": " << mismatch_->text << std::endl;
      std::_Exit(1);
    }
  }
}

void ScriptPlayer::PlayInForm(const Statement& s, Form& form, FormHand& hand) {
  try {
    if (PlayAnywhere(s)) return;
  } catch (const RuntimeFailure& failure) {
    return Fail(s.line, failure.Text());
  }
  Require(s, FormStatements(form, hand, files_, options_.output).Play(s));
}

Answer ScriptPlayer::MeetMessage(const MessageBox& box) {
  const Answer leave = box.buttons == MessageBox::Buttons::Ok      ? Answer::Ok
                       : box.buttons == MessageBox::Buttons::YesNo ? Answer::No
                                                                   : Answer::Cancel;
  if (mismatch_) return leave;
  const Statement* next = Next();
  const std::string told = "appare il messaggio " + Quoted(box.title) + " " + Quoted(box.text);
  if (next == nullptr) {
    Fail(Line(), told);
    return leave;
  }
  const auto& w = next->words;
  const bool isFailure = box.title == kFailureTitle;
  const bool expected = isFailure ? next->Verb() == "failure" && Matches(w[1].text, box.text)
                                  : next->Verb() == "message" && w[1].text == box.title &&
                                        Matches(w[2].text, box.text);
  if (!expected) {
    Fail(next->line, told);
    return leave;
  }
  ++at_;
  if (isFailure || w.size() < 4) {
    if (box.buttons != MessageBox::Buttons::Ok) Fail(next->line, "il messaggio vuole una risposta");
    return leave;
  }
  const auto answer = AnswerOf(w[3].text);
  if (!answer || !Offers(box.buttons, *answer))
    Fail(next->line, "il messaggio non ha la risposta " + w[3].text);
  return answer.value_or(leave);
}

void ScriptPlayer::MeetProgramStart(const std::string& program, const std::string& argument) {
  started_.emplace_back(program, argument);
}

std::optional<std::string> ScriptPlayer::MeetFileChoice(const FileChoice& choice) {
  if (mismatch_) return std::nullopt;
  const Statement* next = Next();
  if (next == nullptr || next->Verb() != "file") {
    Fail(Line(), "appare la scelta di un file: " + choice.title);
    return std::nullopt;
  }
  ++at_;
  if (next->words[1].Is("none")) return std::nullopt;
  return next->words[1].text;
}

}  // namespace orm
