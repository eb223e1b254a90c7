// Tests of the widgets: an application without a screen around them.
#include <gtest/gtest.h>

#include "desktop/desktop_app.h"
#include "tests/stage/desktop_stage.h"

int main(int argc, char** argv) {
  orm::UseNoScreen();
  QApplication application(argc, argv);
  orm::DressApplication(application);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
