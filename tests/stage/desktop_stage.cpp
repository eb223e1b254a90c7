#include "tests/stage/desktop_stage.h"

#include <QAbstractButton>
#include <QMenu>
#include <QMenuBar>
#include <QPalette>
#include <QScreen>
#include <QTemporaryFile>
#include <QTest>
#include <algorithm>

#include "desktop/player/desktop_player.h"
#include "desktop/player/menu_window.h"
#include "desktop/player/message_window.h"
#include "desktop/qt_text.h"
#include "script/statement.h"
#include "tests/stage/rehearsal.h"

namespace orm {
namespace {

std::unique_ptr<WidgetHand> HandOn(FormDialog& dialog, const DesktopStageOptions& options,
                                   PlayedChain& chain) {
  switch (options.hand) {
    case Hand::Keys:
      return std::make_unique<KeyHand>(dialog, options);
    case Hand::Hasty:
      return std::make_unique<NotingHand>(dialog, options, chain);
    case Hand::Mouse:
      break;
  }
  return std::make_unique<WidgetHand>(dialog, options);
}

// The player of the desktop with a script in the person's place.
class ScriptedPlayer : public DesktopPlayer {
 public:
  ScriptedPlayer(Actor& actor, const WorkFolder& folder, DesktopStageOptions options)
      : DesktopPlayer(folder.Path()),
        actor_(actor),
        folder_(folder),
        options_(std::move(options)) {}

  std::optional<std::string> ChooseFile(const FileChoice& choice) override {
    if (rehearsal != nullptr) return std::nullopt;
    return actor_.MeetFileChoice(choice);
  }
  void StartProgram(const std::string& program, const std::string& argument) override {
    if (rehearsal == nullptr) actor_.MeetProgramStart(program, argument);
  }
  bool ProgramExists(const std::string& path) override {
    return ScriptProgramExists(path, folder_);
  }
  OutsidePrograms DefaultPrograms() override { return ScriptPrograms(); }
  ScreenSize Screen() override { return actor_.Screen(); }
  Date Today() override { return actor_.Today(); }

  PlayedChain chain;               // of the command that a hasty person has chosen
  Rehearsal* rehearsal = nullptr;  // acts in the script's place

 protected:
  void Run(FormDialog& dialog) override {
    dialog.open();
    if (options_.wholeScreen && dialog.maximumWidth() == QWIDGETSIZE_MAX) {
      dialog.resize(dialog.screen()->availableSize() - FormDialog::kFrame);
      dialog.move(0, 0);
    }
    QCoreApplication::processEvents();
    if (rehearsal != nullptr) {
      rehearsal->Meet(dialog);
      return dialog.hide();
    }
    const std::unique_ptr<WidgetHand> hand = HandOn(dialog, options_, chain);
    hand->Look();
    actor_.MeetForm(dialog.Model(), *hand);
    dialog.hide();
  }
  void Run(QMessageBox& shown, const MessageBox& box) override {
    shown.open();
    QCoreApplication::processEvents();
    const orm::Answer answer =
        rehearsal != nullptr ? rehearsal->Meet(box) : actor_.MeetMessage(box);
    if (rehearsal == nullptr) chain.messages.emplace_back(box.text, answer);
    QAbstractButton* button = ButtonOf(shown, answer);
    if (options_.hand == Hand::Mouse)
      QTest::mouseClick(button, Qt::LeftButton);
    else
      PressWithKeys(shown, *button);
  }

 private:
  Actor& actor_;
  const WorkFolder& folder_;
  DesktopStageOptions options_;
};

using Files = std::map<std::string, std::string>;

void ClickIn(QMenu& menu, QAction* action) {
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
}

class WidgetStage : public Stage {
 public:
  WidgetStage(Actor& actor, const WorkFolder& folder, DesktopStageOptions options)
      : keys_(options.hand != Hand::Mouse),
        options_(options),
        folder_(folder),
        player_(actor, folder, std::move(options)) {}

  Player& People() override { return player_; }

  void Raise(MainWindow& window) override {
    if (shown_ != nullptr) return;
    shown_ = std::make_unique<MenuWindow>(window);
    player_.SetMainWindow(shown_.get());
    shown_->show();
    QCoreApplication::processEvents();
  }

  std::string Choose(MainWindow&, std::string_view command) override {
    if (options_.rehearsed == nullptr || !command.ends_with("_ID")) return ChooseOnce(command);
    const auto before = Contents();
    player_.chain = {};
    std::string objection = ChooseOnce(command);
    if (objection.empty() && player_.chain.WholeNote() &&
        options_.rehearsed->emplace(std::string(command), player_.chain.Changes()).second)
      objection = Rehearse(command, before);
    return objection;
  }
  // The note is typed in again from the files that there were before, with a slip in every window.
  std::string Rehearse(std::string_view command, const Files& before) {
    const auto after = Contents();
    PutBack(before);
    const Drafts::All drafts = std::exchange(player_.DraftsOfRun().Kept(), {});
    Rehearsal rehearsal(player_.chain);
    player_.rehearsal = &rehearsal;
    std::string objection;
    while (objection.empty() && !rehearsal.Ended()) {
      const auto stored = Contents();
      rehearsal.Begin();
      objection = ChooseOnce(command);
      if (objection.empty()) objection = rehearsal.Fault();
      if (objection.empty() && rehearsal.LeftAtTheStart() && Contents() != stored)
        objection = "chi rinuncia all'inizio cambia un file";
      if (objection.empty() && rehearsal.LeftStoredRow() && Contents() != stored) {
        objection = BringBack(stored);
        rehearsal.BroughtBack();
      }
    }
    for (const auto& [name, text] : Contents())
      if (objection.empty() && (!after.contains(name) || after.at(name) != text))
        objection = "dopo le sviste " + name + " è " + Quoted(text);
    player_.rehearsal = nullptr;
    player_.DraftsOfRun().Kept() = drafts;
    PutBack(after);
    return objection;
  }
  std::string ChooseOnce(std::string_view command) {
    const std::vector<QMenu*> path = shown_->PathTo(std::string(command));
    if (path.empty()) return "il menù non ha questo comando";
    QMenuBar* bar = shown_->menuBar();
    if (keys_)
      return ChooseWithKeys(*bar, path, *shown_->CommandAction(std::string(command)))
                 ? ""
                 : "il menù non si apre con i tasti";
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(path[0]->menuAction()).center());
    for (std::size_t i = 1; i < path.size(); ++i) {
      path[i - 1]->setActiveAction(path[i]->menuAction());
      QTest::keyClick(path[i - 1], Qt::Key_Right);
      if (!path[i]->isVisible()) return "il menù non si apre";
    }
    ClickIn(*path.back(), shown_->CommandAction(std::string(command)));
    QCoreApplication::processEvents();
    return {};
  }
  void AskHelp(MainWindow& window) override {
    Raise(window);
    QWidget* front = QApplication::activeModalWidget();
    QTest::keyClick(front == nullptr ? shown_.get() : front, Qt::Key_F1);
  }

 private:
  Files Contents() const {
    Files contents;
    for (const std::string& name : folder_.Names()) contents[name] = folder_.Read(name);
    return contents;
  }
  // As the manual tells: what a file held stands in `storico`.
  std::string BringBack(const Files& files) const {
    const WorkFolder kept(folder_.PathOf("storico"));
    for (const auto& [name, text] : files) {
      const auto holds = [&, &held = text](const std::string& old) {
        return kept.Read(old) == held;
      };
      if (folder_.Read(name) != text && std::ranges::none_of(kept.Names(), holds))
        return name + " com'era non è in storico";
    }
    PutBack(files);
    return {};
  }
  void PutBack(const Files& files) const {
    for (const std::string& name : folder_.Names())
      if (!files.contains(name)) folder_.Remove(name);
    for (const auto& [name, text] : files)
      if (!folder_.Exists(name) || folder_.Read(name) != text) folder_.Replace(name, text);
  }

  bool keys_;
  DesktopStageOptions options_;
  const WorkFolder& folder_;
  ScriptedPlayer player_;
  std::unique_ptr<MenuWindow> shown_;
};

}  // namespace

void UseNoScreen(int width, int height) {
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
  // The scale that the user asks for makes the screen finer, not smaller.
  const double scale = std::max(1.0, qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble());
  static QTemporaryFile screen;
  if (screen.open()) {
    screen.write(QString(R"({"screens": [{"name": "", "x": 0, "y": 0, "width": %1, "height": %2,
      "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                     .arg(qRound(width * scale))
                     .arg(qRound(height * scale))
                     .toUtf8());
    screen.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen.fileName().toUtf8());
  }
  // What a platform without a screen cannot do is told at each window; all else goes out.
  static QtMessageHandler before = nullptr;
  before = qInstallMessageHandler(
      [](QtMsgType type, const QMessageLogContext& place, const QString& text) {
        if (!text.startsWith("This plugin does not support")) before(type, place, text);
      });
}

void UseDarkColours() {
  QPalette dark(QColor(53, 53, 56), QColor(43, 43, 46));
  dark.setColor(QPalette::Base, QColor(30, 30, 33));
  dark.setColor(QPalette::Highlight, QColor(58, 120, 200));
  QApplication::setPalette(dark);
}

StageBuilder DesktopStage(DesktopStageOptions options) {
  return [options](Actor& actor, const WorkFolder& folder) {
    return std::make_unique<WidgetStage>(actor, folder, options);
  };
}

}  // namespace orm
