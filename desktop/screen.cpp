#include "desktop/screen.h"

#include <QGuiApplication>

namespace orm {
namespace {
bool IsSet(const char* variable) { return !qEnvironmentVariableIsEmpty(variable); }
constexpr const char* kPlatform = "QT_QPA_PLATFORM";
}  // namespace

PlatformChoice::PlatformChoice(bool needsScreen) {
  if (IsSet(kPlatform) || (needsScreen && IsSet("WAYLAND_DISPLAY"))) return;
  ours_ = true;
  qputenv(kPlatform, needsScreen && IsSet("DISPLAY") ? "xcb;offscreen" : "offscreen");
}

bool PlatformChoice::IsUnseen() {
  if (!ours_) return false;
  qunsetenv(kPlatform);
  return QGuiApplication::platformName() == QLatin1String("offscreen");
}

}  // namespace orm
