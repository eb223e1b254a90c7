// orm2002-guida [BOOK|PAGE]: the help in a window of its own, beside whatever the program shows. A
// second call shows its page in the window that is open.
#include <unistd.h>

#include <QApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSettings>
#include <QStandardPaths>
#include <cstdio>

#include "desktop/desktop_app.h"
#include "desktop/guide/help_window.h"
#include "desktop/screen.h"
#include "shell/help/program_texts.h"

namespace {

constexpr int kPatience = 500;  // milliseconds for a window that is open to answer

// One window for each person and screen.
QString Meeting() {
  QString screen = qEnvironmentVariable("WAYLAND_DISPLAY") + qEnvironmentVariable("DISPLAY");
  screen.replace('/', '_');
  // In the folder that is the person's own: nobody else can wait there under the same name.
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
         QStringLiteral("/orm2002-guida-%1-%2").arg(getuid()).arg(screen);
}

// True when an open window took the place over.
bool HandedOver(const QString& place) {
  QLocalSocket socket;
  socket.connectToServer(Meeting());
  if (!socket.waitForConnected(kPatience)) return false;
  socket.write(place.toUtf8() + '\n');
  return socket.waitForBytesWritten(kPatience);
}

void ShowWhatOthersAsk(QLocalServer& server, orm::HelpWindow& window) {
  QObject::connect(&server, &QLocalServer::newConnection, &window, [&server, &window] {
    QLocalSocket* socket = server.nextPendingConnection();
    QObject::connect(socket, &QLocalSocket::readyRead, &window, [socket, &window] {
      if (!socket->canReadLine()) return;
      window.Open(QString::fromUtf8(socket->readLine()).trimmed());
      window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
      window.raise();
      window.activateWindow();
    });
    QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
  });
  QLocalServer::removeServer(Meeting());  // left behind by a window that was killed
  server.setSocketOptions(QLocalServer::UserAccessOption);
  server.listen(Meeting());
}

}  // namespace

int main(int argc, char** argv) {
  if (orm::AnswersForItself("orm2002-guida", argc, argv)) return 0;
  orm::PlatformChoice platform;
  QApplication application(argc, argv);
  if (platform.IsUnseen()) {
    std::fputs("orm2002-guida: non c'è uno schermo su cui mostrare la guida.\n", stderr);
    return 1;
  }
  orm::DressApplication(application);
  const QStringList arguments = QCoreApplication::arguments();
  const QString place = arguments.size() > 1 ? arguments[1] : QString();
  if (HandedOver(place)) return 0;

  QSettings habits(QStringLiteral("ORM2002"), QStringLiteral("Guida"));
  orm::HelpWindow window;
  window.TakeHabits(habits);
  QLocalServer server;
  ShowWhatOthersAsk(server, window);
  window.Open(place);
  window.show();
  const int result = QApplication::exec();
  window.KeepHabits(habits);
  return result;
}
