#include "tests/stage/desktop_stage.h"

#include <QAbstractButton>
#include <QMenu>
#include <QMenuBar>
#include <QPalette>
#include <QScreen>
#include <QTemporaryFile>
#include <QTest>

#include "desktop/player/desktop_player.h"
#include "desktop/player/menu_window.h"
#include "desktop/player/message_window.h"
#include "desktop/qt_text.h"
#include "tests/stage/key_hand.h"

namespace orm {
namespace {

std::unique_ptr<WidgetHand> HandOn(FormDialog& dialog, const DesktopStageOptions& options) {
  switch (options.hand) {
    case Hand::Keys:
      return std::make_unique<KeyHand>(dialog, options);
    case Hand::Hasty:
      return std::make_unique<HastyHand>(dialog, options);
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
    return actor_.MeetFileChoice(choice);
  }
  void StartProgram(const std::string& program, const std::string& argument) override {
    actor_.MeetProgramStart(program, argument);
  }
  bool ProgramExists(const std::string& path) override {
    return ScriptProgramExists(path, folder_);
  }
  OutsidePrograms DefaultPrograms() override { return ScriptPrograms(); }
  ScreenSize Screen() override { return actor_.Screen(); }
  Date Today() override { return actor_.Today(); }

  // What a hasty person does with the header of a note before the script goes on: it is left in its
  // middle, which ends the command and must change no file, and found again by the same command.
  enum class Header { AsScripted, Leave, Left, TakeUp };
  Header header = Header::AsScripted;

 protected:
  void Run(FormDialog& dialog) override {
    dialog.open();
    if (options_.wholeScreen && dialog.maximumWidth() == QWIDGETSIZE_MAX) {
      dialog.resize(dialog.screen()->availableSize() - FormDialog::kFrame);
      dialog.move(0, 0);
    }
    QCoreApplication::processEvents();
    if (dialog.Model().Name() == "frmGEN_Intestazione" && header != Header::AsScripted) {
      HastyHand hand(dialog, options_);
      if (header == Header::TakeUp) hand.TakeUpAgain();
      if (header == Header::Leave) {
        hand.TypeAndLeave();
        header = Header::Left;
        return dialog.hide();
      }
      header = Header::AsScripted;
    }
    const std::unique_ptr<WidgetHand> hand = HandOn(dialog, options_);
    hand->Look();
    actor_.MeetForm(dialog.Model(), *hand);
    dialog.hide();
  }
  void Run(QMessageBox& shown, const MessageBox& box) override {
    shown.open();
    QCoreApplication::processEvents();
    QAbstractButton* button = ButtonOf(shown, actor_.MeetMessage(box));
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

void ClickIn(QMenu& menu, QAction* action) {
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
}

class WidgetStage : public Stage {
 public:
  WidgetStage(Actor& actor, const WorkFolder& folder, DesktopStageOptions options)
      : keys_(options.hand != Hand::Mouse),
        hasty_(options.hand == Hand::Hasty),
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
    using Header = ScriptedPlayer::Header;
    if (!hasty_ || !command.ends_with("_ID")) return ChooseOnce(command);
    const auto before = Contents();
    player_.header = Header::Leave;
    const std::string objection = ChooseOnce(command);
    const bool left = player_.header == Header::Left;
    player_.header = left ? Header::TakeUp : Header::AsScripted;
    if (!left || !objection.empty()) return objection;
    return Contents() == before ? ChooseOnce(command) : "la testata lasciata ha cambiato un file";
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
  std::map<std::string, std::string> Contents() const {
    std::map<std::string, std::string> contents;
    for (const std::string& name : folder_.Names()) contents[name] = folder_.Read(name);
    return contents;
  }

  bool keys_, hasty_;
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
