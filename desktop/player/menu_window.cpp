#include "desktop/player/menu_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QTimer>

#include "desktop/pictures.h"
#include "desktop/player/menu_keys.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

// The picture, centred, at a quarter of the free height from the top.
class PictureArea : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override {
    if (picture_.isNull()) picture_ = MainPicture(devicePixelRatioF());
    QSizeF size = picture_.deviceIndependentSize();
    if (size.width() > width() || size.height() > height())
      size.scale(QSizeF(this->size()), Qt::KeepAspectRatio);
    const QPointF corner((width() - size.width()) / 2, (height() - size.height()) / 4);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRectF(corner, size), picture_, QRectF(picture_.rect()));
  }

 private:
  QPixmap picture_;
};

std::vector<std::string> Captions(const std::vector<MenuItem>& items) {
  std::vector<std::string> captions;
  for (const MenuItem& item : items) captions.push_back(item.caption);
  return captions;
}

}  // namespace

MenuWindow::MenuWindow(MainWindow& window) : window_(window) {
  setObjectName("frmGEN_Main");
  qApp->installEventFilter(this);
  setWindowTitle(ToQt(window.Title()).trimmed());
  // Two jobs have windows of one title: a task bar tells them apart by their folders.
  setWindowIconText(QDir::current().dirName());
  setCentralWidget(new PictureArea);
  passing_ = new QLabel(centralWidget());
  passing_->setObjectName("archiviata");
  passing_->setTextFormat(Qt::PlainText);
  passing_->setAlignment(Qt::AlignCenter);
  passing_->setWordWrap(true);
  passing_->setAutoFillBackground(true);
  passing_->setMargin(8);
  passing_->hide();
  passingEnds_.setSingleShot(true);
  connect(&passingEnds_, &QTimer::timeout, passing_, &QLabel::hide);
  const QRect room = screen()->availableGeometry();
  resize(QSize(1000, 680).boundedTo(room.size() * 0.9));
  move(room.center() - rect().center());
  const std::vector<std::string> captions = MenuKeys(Captions(window.Menu()));
  for (std::size_t i = 0; i < captions.size(); ++i) {
    const MenuItem& top = window.Menu()[i];
    QMenu* menu = menuBar()->addMenu(ToQt(captions[i]));
    menu->setObjectName(ToQt(top.name));
    menu->menuAction()->setObjectName(ToQt(top.name));
    connect(menu, &QMenu::aboutToShow, this, [this, menu, &top] {
      passing_->hide();
      FillTop(*menu, top);
      window_.MenuOpened(top.name);
    });
  }
}

// A menu gets its entries when it opens for the first time: all hundred of them would slow the
// start of the program.
void MenuWindow::FillTop(QMenu& menu, const MenuItem& top) {
  if (menu.isEmpty()) Fill(menu, top.children);
}

void MenuWindow::Fill(QMenu& menu, const std::vector<MenuItem>& items) {
  const std::vector<std::string> captions = MenuKeys(Captions(items));
  for (std::size_t i = 0; i < items.size(); ++i) {
    const MenuItem& item = items[i];
    if (item.IsSeparator()) {
      menu.addSeparator();
      continue;
    }
    QAction* action = nullptr;
    if (item.children.empty()) {
      action = menu.addAction(ToQt(captions[i]));
      connect(action, &QAction::triggered, this, [this, name = item.name] { Choose(name); });
      commands_[item.name] = action;
    } else {
      QMenu* inner = menu.addMenu(ToQt(captions[i]));
      inner->setObjectName(ToQt(item.name));
      Fill(*inner, item.children);
      action = inner->menuAction();
    }
    action->setObjectName(ToQt(item.name));
    action->setMenuRole(QAction::NoRole);
  }
}

void MenuWindow::Choose(const std::string& command) {
  passing_->hide();
  window_.Choose(command);
  if (const SavedNote note = window_.TakeSaved(); !note.text.empty()) TellSaved(note);
  EndIfEnded();
}

// A line at the foot of the picture, which no one has to answer.
void MenuWindow::TellSaved(const SavedNote& note) {
  passing_->setText("Archiviata: " + ToQt(note.text) + "\nPer il calcolo: " + KeysOf(note.next));
  QPalette colours = palette();
  colours.setColor(QPalette::Window, palette().color(QPalette::ToolTipBase));
  colours.setColor(QPalette::WindowText, palette().color(QPalette::ToolTipText));
  passing_->setPalette(colours);
  const QSize room = centralWidget()->size();
  const int height = passing_->heightForWidth(room.width());
  passing_->setGeometry(0, room.height() - height, room.width(), height);
  passing_->show();
  passingEnds_.start(kPassing);
}

// The keys that open the menus down to a command, one after the other.
QString MenuWindow::KeysOf(const std::string& command) {
  QStringList keys;
  const auto add = [&keys](const QAction* action) {
    const QString key = QKeySequence::mnemonic(action->text()).toString(QKeySequence::NativeText);
    keys += keys.isEmpty() ? key : key.section('+', -1);
  };
  for (const QMenu* menu : PathTo(command)) add(menu->menuAction());
  if (const QAction* action = CommandAction(command)) add(action);
  return keys.join(QStringLiteral(", "));
}

void MenuWindow::EndIfEnded() {
  if (!window_.Ended()) return;
  close();
  QCoreApplication::quit();
}

QAction* MenuWindow::CommandAction(const std::string& command) {
  for (const MenuItem& top : window_.Menu()) FillTop(*findChild<QMenu*>(ToQt(top.name)), top);
  const auto found = commands_.find(command);
  return found == commands_.end() ? nullptr : found->second;
}

std::vector<QMenu*> MenuWindow::PathTo(const std::string& command) {
  std::vector<QMenu*> path;
  if (QAction* action = CommandAction(command))
    for (auto* menu = dynamic_cast<QMenu*>(action->parent()); menu != nullptr;
         menu = dynamic_cast<QMenu*>(menu->parentWidget()))
      path.insert(path.begin(), menu);
  return path;
}

// On an open menu help is about the command that the person is at.
bool MenuWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool help = event->type() == QEvent::KeyPress && watched->isWidgetType() &&
                    static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1;
  if (!help) return QMainWindow::eventFilter(watched, event);
  std::string command;
  if (auto* menu = qobject_cast<QMenu*>(watched);
      menu != nullptr && menu->activeAction() != nullptr)
    command = FromQt(menu->activeAction()->objectName());
  window_.Help(command);
  return true;
}

void MenuWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!std::exchange(activates_, false)) return;
  // After the first painting, so that the window stands behind what the start shows.
  QTimer::singleShot(0, this, [this] {
    repaint();
    window_.FirstActivation();
    EndIfEnded();
  });
}

void MenuWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  QCoreApplication::quit();
}

}  // namespace orm
