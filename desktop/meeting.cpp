#include "desktop/meeting.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>
#include <utility>

namespace orm {
namespace {
constexpr int kPatience = 500;  // milliseconds for a window that is open to answer
}

QString MeetingPlace(const QString& of) {
  // In the folder that is the person's own: nobody else can wait there under the same name.
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
         QStringLiteral("/orm2002-%1-%2").arg(of).arg(getuid());
}

QString MeetingPlaceOfFolder(const QString& folder) {
  struct stat known {};
  if (::stat(QFile::encodeName(folder).constData(), &known) != 0) return {};
  return MeetingPlace(QStringLiteral("cartella-%1-%2").arg(known.st_dev).arg(known.st_ino));
}

bool HandOver(const QString& place, const QString& word) {
  QLocalSocket socket;
  socket.connectToServer(place);
  if (!socket.waitForConnected(kPatience)) return false;
  socket.write(word.toUtf8() + '\n');
  return socket.waitForBytesWritten(kPatience);
}

void BringForward(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.raise();
  window.activateWindow();
  QWidget* dialog = QApplication::activeModalWidget();
  if (dialog == nullptr) return;
  dialog->raise();
  dialog->activateWindow();
}

Meeting::Meeting(const QString& place, std::function<void(const QString& word)> met) {
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this, met = std::move(met)] {
    QLocalSocket* socket = server_.nextPendingConnection();
    QObject::connect(socket, &QLocalSocket::readyRead, &server_, [socket, met] {
      if (socket->canReadLine()) met(QString::fromUtf8(socket->readLine()).trimmed());
    });
    QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
  });
  if (place.isEmpty()) return;
  QLocalServer::removeServer(place);  // left behind by a window that was killed
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  server_.listen(place);
}

}  // namespace orm
