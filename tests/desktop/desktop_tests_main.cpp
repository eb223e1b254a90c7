// Tests of the widgets: an application without a screen around them.
#include <gtest/gtest.h>

#include <QDir>
#include <QPalette>
#include <QStyleFactory>

#include "desktop/desktop_app.h"
#include "desktop/qt_text.h"
#include "tests/desktop/gallery_form.h"
#include "tests/stage/desktop_stage.h"

namespace {

QPalette DarkPalette() {
  QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
  dark.setColor(QPalette::Base, QColor(35, 35, 35));
  dark.setColor(QPalette::AlternateBase, QColor(53, 53, 53));
  dark.setColor(QPalette::ToolTipBase, QColor(70, 70, 70));
  dark.setColor(QPalette::ToolTipText, Qt::white);
  dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
  return dark;
}

}  // namespace

int main(int argc, char** argv) {
  orm::UseNoScreen();
  QApplication application(argc, argv);
  orm::DressApplication(application);
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i];
    if (argument == "--dark") QApplication::setPalette(DarkPalette());
    if (argument.starts_with("--gallery=")) orm::galleryFolder = argument.substr(10);
  }
  if (!orm::galleryFolder.empty()) QDir().mkpath(orm::ToQt(orm::galleryFolder));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
