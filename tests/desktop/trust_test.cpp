// What a folder brings along is not trusted, and nothing is reported as printed that is not there.
#include <gtest/gtest.h>

#include <QFile>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "desktop/player/desktop_player.h"
#include "desktop/player/message_window.h"
#include "desktop/print_whole.h"

namespace orm {
namespace {

class Person : public DesktopPlayer {
 public:
  using DesktopPlayer::DesktopPlayer;
  Answer answer = Answer::No;
  std::string asked;

 protected:
  void Run(QMessageBox& shown, const MessageBox& box) override {
    asked = box.text;
    EXPECT_TRUE(box.buttons == MessageBox::Buttons::Ok ||
                static_cast<QPushButton*>(ButtonOf(shown, Answer::No))->isDefault());
    EXPECT_EQ(shown.textFormat(), Qt::PlainText);  // names of files are shown letter for letter
    shown.open();
    QAbstractButton* button = ButtonOf(shown, answer);
    QTest::mouseClick(button == nullptr ? ButtonOf(shown, Answer::Ok) : button, Qt::LeftButton);
  }
};

// A program that leaves a sign behind.
void LayProgram(const QString& path, const QString& sign) {
  QFile program(path);
  ASSERT_TRUE(program.open(QIODevice::WriteOnly));
  program.write(("#!/bin/sh\ntouch '" + sign + "'\n").toUtf8());
  program.close();
  program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST(Trust, AProgramIsAskedAboutOnceAndNoneOfTheFolderIsStarted) {
  const QTemporaryDir folder, outside, settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  const QString sign = outside.filePath("avviato");
  const auto started = [&] {
    return QTest::qWaitFor([&] { return QFile::exists(sign); }, 1500) && QFile::remove(sign);
  };
  LayProgram(folder.filePath("visore"), sign);
  LayProgram(outside.filePath("editor"), sign);
  const std::string editor = outside.filePath("editor").toStdString();
  Person person(folder.path().toStdString());
  person.answer = Answer::Yes;
  for (const std::string& program :
       {std::string("./visore"), folder.filePath("visore").toStdString()}) {
    person.StartProgram(program, "A.DOC");
    EXPECT_NE(person.asked.find("CARTELLA DI LAVORO"), std::string::npos) << person.asked;
    EXPECT_FALSE(started());
  }
  person.answer = Answer::No;
  person.StartProgram(editor, "A.DOC");
  EXPECT_NE(person.asked.find(editor), std::string::npos) << person.asked;
  EXPECT_FALSE(started());
  person.answer = Answer::Yes;
  person.StartProgram(editor, "A.DOC");
  EXPECT_TRUE(started());
  person.asked.clear();
  person.StartProgram(editor, "A.DOC");
  EXPECT_TRUE(started());
  EXPECT_EQ(person.asked, "");
}

class PrintToFile : public testing::Test {
 protected:
  // What the person was told; empty when the printing is reported as done.
  QString Print(const QString& path, bool works) {
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    QString told;
    QTimer reader;
    QObject::connect(&reader, &QTimer::timeout, [&told] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        told = box->text();
        box->accept();
      }
    });
    reader.start(10);
    const bool done = PrintWhole(printer, nullptr, [&] {
      QPainter painter;
      if (!painter.begin(&printer)) return false;
      painter.drawText(100, 100, "prova");
      return painter.end() && works;
    });
    EXPECT_EQ(done, told.isEmpty());
    EXPECT_EQ(printer.outputFileName(), path);
    return told;
  }
  QByteArray Contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QTemporaryDir folder_;
};

TEST_F(PrintToFile, IsWholeOrTheOldFileStays) {
  const QString path = folder_.filePath("a.pdf");
  EXPECT_EQ(Print(path, true), "");
  const QByteArray whole = Contents(path);
  EXPECT_TRUE(whole.startsWith("%PDF") && whole.trimmed().endsWith("%%EOF"));
  EXPECT_TRUE(Print(path, false).contains("non è riuscita"));
  EXPECT_EQ(Contents(path), whole);
  EXPECT_TRUE(Print("/dev/full", true).contains("/dev/full"));
  EXPECT_TRUE(Print(folder_.filePath("assente/a.pdf"), true).contains("non c'è"));
}

}  // namespace
}  // namespace orm
