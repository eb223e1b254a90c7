// The windows' own saves, for the fault loops:
//
//   orm_desktop_saver FOLDER utente|visore|copia|stampa|aspetta|nuovo|prende|versione
//
// the form of the professional's data, a report changed in the viewer, its copy as text, a page
// printed to a file, a report changed on a real screen until that goes; on the desk of the jobs in
// FOLDER, by keys: a job "Nuovo", Uno.json into "Uno", the oldest version of its note. Exit codes
// as those of orm_saver. It is followed (followed.h) from when everything is on the screen: Qt's
// own start is no part of a save.
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <map>
#include <string>

#include "desktop/desk/window.h"
#include "desktop/desktop_app.h"
#include "desktop/last_words.h"
#include "desktop/player/desktop_player.h"
#include "desktop/player/form_dialog.h"
#include "desktop/print_whole.h"
#include "desktop/viewer/parts/page.h"
#include "desktop/viewer/window.h"
#include "shell/shell.h"
#include "tests/faults/followed.h"

namespace {

int code = 0;

void Told(const std::string& text, bool failed) {
  std::fputs((text + "\n").c_str(), stderr);
  if (failed) code = 2;
}

class Hand : public orm::DesktopPlayer {
 public:
  using DesktopPlayer::DesktopPlayer;

 protected:
  void Run(orm::FormDialog& dialog) override {
    dialog.open();
    orm::Button* chosen = nullptr;
    for (orm::Control* control : dialog.Model().Controls()) {
      auto* button = dynamic_cast<orm::Button*>(control);
      if (button != nullptr && button->GetRole() == orm::Button::Role::Default) chosen = button;
      if (control->GetKind() == orm::Control::Kind::TextBox) control->Enter("nuovo");
    }
    BeFollowed();
    dialog.Press(*chosen);
    dialog.hide();
  }
  void Run(QMessageBox&, const orm::MessageBox& box) override {
    Told(box.text, box.icon != orm::MessageBox::Icon::Information);
  }
};

void Save(const std::string& folder, const std::string& what) {
  orm::ViewerWindow window;
  window.Open(folder + "/OUT_PPE.DOC");
  window.SetEditing(true);
  window.Page().selectAll();
  QTest::keyClicks(&window.Page(), "parcella corretta");
  window.show();
  BeFollowed();
  if (what == "visore") window.Save();
  if (what == "copia") window.SaveCopy(orm::CopyKind::Utf8, folder + "/COPIA.txt");
  if (what == "aspetta") {
    const orm::LastWords lastWords([&window] { window.KeepUnsaved(); });
    std::puts("pronto");
    std::fflush(stdout);
    QApplication::exec();
  }
  window.Page().document()->setModified(false);
}

void Print(const std::string& path) {
  QPrinter printer;
  printer.setOutputFileName(QString::fromStdString(path));
  BeFollowed();
  orm::PrintWhole(printer, nullptr, [&] {
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    painter.drawText(100, 100, "parcella");
    return painter.end();
  });
}

// A key in the window of the desk, after which its questions are answered. Done twice it is done
// once.
void Work(const std::string& folder, const std::string& what) {
  const QString root = QString::fromStdString(folder);
  const std::map<std::string, QKeySequence> keys = {{"nuovo", QKeySequence("Ctrl+N")},
                                                    {"prende", QKeySequence("Ctrl+Shift+J")},
                                                    {"versione", QKeySequence("Ctrl+Shift+V")}};
  if (QFileInfo::exists(root + "/Nuovo")) return;
  QTemporaryDir home;
  orm::DeskSettings settings(home.filePath("desk.ini"));
  settings.SetRoot(root);
  settings.SetFolder(root);
  orm::DeskWindow window(settings);
  window.show();
  window.GoTo("Uno");
  window.activateWindow();
  QTimer person;
  QObject::connect(&person, &QTimer::timeout, [&] {
    QWidget* front = QApplication::activeModalWidget();
    auto* field = front == nullptr ? nullptr : front->findChild<QLineEdit*>();
    if (auto* files = qobject_cast<QFileDialog*>(front)) {
      files->selectFile(root + "/Uno.json");
      QTest::keyClick(field, Qt::Key_Return);
    } else if (field != nullptr) {
      field->setText("Nuovo");
      QTest::keyClick(field, Qt::Key_Return);
    } else if (front != nullptr && front->findChild<QPushButton*>("back") != nullptr) {
      QTest::keyClick(front->focusWidget(), Qt::Key_End, Qt::ControlModifier);
      QTest::keyClick(front, Qt::Key_Return);
      QTest::keyClick(front, Qt::Key_Escape);
    }
  });
  person.start(5);
  QTimer::singleShot(20000, [] { ::_exit(3); });  // nothing waits for ever
  QTest::qWait(20);
  BeFollowed();
  const QKeyCombination key = keys.at(what)[0];
  QTest::keyClick(&window, key.key(), key.keyboardModifiers());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 3;
  const std::string folder = argv[1], what = argv[2];
  qputenv("QT_QPA_PLATFORM", what == "aspetta" ? "xcb" : "offscreen");
  QApplication application(argc, argv);
  orm::DressApplication(application);
  QTimer reader;
  QObject::connect(&reader, &QTimer::timeout, [] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      if (box->icon() == QMessageBox::Question) return box->buttons().first()->click();
      Told((box->text() + "\n" + box->informativeText()).toStdString(),
           box->icon() != QMessageBox::Information);
      box->reject();
    }
  });
  reader.start(5);
  if (what == "stampa") {
    Print(folder + "/STAMPA.pdf");
  } else if (what == "utente") {
    Hand hand(folder);
    orm::Shell(hand, orm::WorkFolder(folder)).Choose("PERS_UTENTE");
  } else if (what != "visore" && what != "copia" && what != "aspetta") {
    Work(folder, what);
  } else {
    Save(folder, what);
  }
  return code;
}
