#include "script/script_player.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "dialogs/lavagna.h"
#include "runtime/failure.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "shell/shell.h"

namespace orm {
namespace {

// TEXT may end in "…" to match a beginning.
bool Matches(const std::string& expected, const std::string& actual) {
  static const std::string kRest = "…";
  if (!expected.ends_with(kRest)) return expected == actual;
  return actual.starts_with(expected.substr(0, expected.size() - kRest.size()));
}

std::string Quoted(const std::string& text) {
  std::string out = "\"";
  for (const char c : text) out += c == '\n' ? std::string("\\n") : std::string(1, c);
  return out + "\"";
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines(1);
  for (const char c : text) {
    if (c == '\n')
      lines.emplace_back();
    else if (c != '\r')
      lines.back() += c;
  }
  return lines;
}

std::string FirstDifference(const std::string& expected, const std::string& actual) {
  const auto a = Lines(expected);
  const auto b = Lines(actual);
  for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
    const std::string left = i < a.size() ? a[i] : "(fine)";
    const std::string right = i < b.size() ? b[i] : "(fine)";
    if (left != right)
      return "riga " + NumberText(static_cast<double>(i + 1)) + "\n  atteso  : " + left +
             "\n  ottenuto: " + right;
  }
  return "le righe sono uguali, non i fine riga";
}

// Where a file that a script names stands: in its folder, or in the nearest one above that has it,
// or that has it among what an installation brings. The script's folder when nobody has it.
WorkFolder FolderWith(const std::string& name, const WorkFolder& scriptFolder) {
  namespace fs = std::filesystem;
  for (fs::path above = fs::absolute(scriptFolder.Path()); above.has_relative_path();
       above = above.parent_path())
    for (const char* place : {"", "data", "data/sample"})
      if (WorkFolder folder((above / place).string()); folder.Exists(name)) return folder;
  return scriptFolder;
}

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
      scriptFolder_(std::move(scriptFolder)),
      folder_(std::move(folder)),
      options_(options) {}

void ScriptPlayer::Fail(int line, std::string text) {
  if (!mismatch_) mismatch_ = Mismatch{line, std::move(text)};
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
  const std::unique_ptr<Stage> stage = build(*this, folder_);
  Shell shell(stage->People(), folder_);
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
  Snapshot();
  started_.clear();
  stage.Raise(window);
  const std::string objection = stage.Choose(window, statement.words[1].text);
  if (!objection.empty()) Fail(statement.line, statement.words[1].text + " : " + objection);
}

void ScriptPlayer::Snapshot() {
  snapshot_.clear();
  for (const std::string& name : folder_.Names()) snapshot_[name] = folder_.Read(name);
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
    folder_.Replace(w.size() == 4 ? w[3].text : w[1].text,
                    FolderWith(w[1].text, scriptFolder_).Read(w[1].text));
  } else if (verb == "write") {
    std::string bytes;
    for (const char c : ToWindows1252(w[2].text))
      bytes += c == '\n' ? std::string("\r\n") : std::string(1, c);
    folder_.Replace(w[1].text, bytes);
  } else if (verb == "remove") {
    folder_.Remove(w[1].text);
  } else if (verb == "starts") {
    Starts(s);
  } else if (verb == "compare") {
    Compare(s, w[1].text, folder_.Read(w[1].text), w.size() == 4 ? w[3].text : w[1].text);
  } else if (verb == "help") {
    stage_->AskHelp(*window_);
  } else if (verb == "same") {
    Same(s);
  } else if (verb == "absent") {
    if (folder_.Exists(w[1].text)) Fail(s.line, "il file " + w[1].text + " c'è");
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

void ScriptPlayer::Compare(const Statement& s, const std::string& name, const std::string& actual,
                           const std::string& expectedName) {
  const WorkFolder place = FolderWith(expectedName, scriptFolder_);
  const bool exists = place.Exists(expectedName);
  const std::string expected = exists ? place.Read(expectedName) : std::string();
  const std::string received = expectedName + ".received";
  if (exists && expected == actual) return scriptFolder_.Remove(received);
  if (options_.update) return scriptFolder_.Replace(expectedName, actual);
  scriptFolder_.Replace(received, actual);
  Fail(s.line, name + (exists ? " diverso da " : ": manca il file atteso ") + expectedName +
                   (exists ? ", " + FirstDifference(expected, actual) : ""));
}

void ScriptPlayer::Same(const Statement& s) {
  const std::string& name = s.words[1].text;
  const auto before = snapshot_.find(name);
  const bool exists = folder_.Exists(name);
  if (exists != (before != snapshot_.end()) || (exists && folder_.Read(name) != before->second))
    Fail(s.line, "il file " + name + " è cambiato");
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
  const std::string& verb = s.Verb();
  try {
    if (PlayAnywhere(s)) return;
  } catch (const RuntimeFailure& failure) {
    return Fail(s.line, failure.Text());
  }
  if (verb == "set") return Set(s, form, hand);
  if (verb == "press") return Press(s, form, hand);
  if (verb == "expect") return Expect(s, form, hand);
  if (verb == "show") return Show(s, form, hand);
  if (verb == "close") return hand.CloseByWindow();
  if (verb == "picture") return hand.Picture(s.words[1].text);
  if (verb == "drawing") {
    Control* control = Find(s, form);
    if (control != nullptr) Compare(s, control->Name(), control->ShownText(), s.words[2].text);
    return;
  }
  Fail(s.line, "la finestra " + form.Name() + " è ancora aperta");
}

Control* ScriptPlayer::Find(const Statement& s, Form& form) {
  Control* control = form.Find(s.words[1].text);
  if (control == nullptr)
    Fail(s.line, "la finestra " + form.Name() + " non ha il controllo " + s.words[1].text);
  return control;
}

void ScriptPlayer::Set(const Statement& s, Form& form, FormHand& hand) {
  Control* control = Find(s, form);
  if (control == nullptr) return;
  if (!hand.IsVisible(*control)) return Fail(s.line, control->Name() + " non si vede");
  if (!hand.IsEnabled(*control)) return Fail(s.line, control->Name() + " non è attivo");
  const std::string objection = hand.Set(*control, s.words[2].text);
  if (!objection.empty()) Fail(s.line, control->Name() + " : " + objection);
}

void ScriptPlayer::Press(const Statement& s, Form& form, FormHand& hand) {
  auto* button = dynamic_cast<Button*>(Find(s, form));
  if (button == nullptr) return Fail(s.line, s.words[1].text + " non è un pulsante");
  if (!hand.IsVisible(*button) || !hand.IsEnabled(*button))
    return Fail(s.line, button->Name() + " non si può premere");
  const std::string objection = hand.Press(*button);
  if (!objection.empty()) Fail(s.line, button->Name() + " : " + objection);
}

void ScriptPlayer::Expect(const Statement& s, Form& form, FormHand& hand) {
  const Word& value = s.words[2];
  if (s.words[1].Is("title")) {
    if (hand.Title() != value.text) Fail(s.line, "il titolo è " + Quoted(hand.Title()));
    return;
  }
  Control* control = Find(s, form);
  if (control == nullptr) return;
  const bool visible = hand.IsVisible(*control);
  const bool enabled = hand.IsEnabled(*control);
  const auto require = [&](bool held) {
    if (!held) Fail(s.line, control->Name() + " non è " + value.text);
  };
  if (value.Is("hidden")) return require(!visible);
  if (value.Is("shown")) return require(visible);
  if (value.Is("enabled")) return require(enabled);
  if (value.Is("disabled")) return require(!enabled);
  if (const std::string shown = hand.Shown(*control); !Matches(value.text, shown))
    Fail(s.line, control->Name() + " mostra " + Quoted(shown));
}

void ScriptPlayer::Show(const Statement& s, Form& form, FormHand& hand) {
  if (options_.output == nullptr) return;
  if (!s.words[1].Is("*")) {
    if (Control* control = Find(s, form))
      *options_.output << control->Name() << "=" << hand.Shown(*control) << "\n";
    return;
  }
  for (Control* control : form.Controls())
    if (hand.IsVisible(*control))
      *options_.output << control->Name() << "=" << hand.Shown(*control) << "\n";
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
