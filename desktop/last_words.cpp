#include "desktop/last_words.h"

#include <fcntl.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace orm {
namespace {

// A signal and the end of the process know no objects.
LastWords* ofThisProgram = nullptr;
int heard[2] = {-1, -1};  // a pipe from the signal to the window's loop

void Hear(int signal) {
  const auto number = static_cast<unsigned char>(signal);
  if (::write(heard[1], &number, 1) != 1) std::_Exit(128 + signal);
}

}  // namespace

LastWords::LastWords(std::function<void()> keep) : keep_(std::move(keep)) {
  ofThisProgram = this;
  auto* timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, [this] { keep_(); });
  timer->start(kEveryMilliseconds);
  // At once, while the session still waits for an answer.
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { keep_(); },
      Qt::DirectConnection);
  std::atexit(AtExit);  // Qt leaves that way when the screen breaks off
  Listen();
}

LastWords::~LastWords() { ofThisProgram = nullptr; }

void LastWords::AtExit() {
  if (ofThisProgram != nullptr) ofThisProgram->keep_();
}

void LastWords::Listen() {
  if (heard[0] < 0 && ::pipe2(heard, O_CLOEXEC | O_NONBLOCK) != 0) return;
  auto* notifier = new QSocketNotifier(heard[0], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] {
    unsigned char signal = 0;
    if (::read(heard[0], &signal, 1) != 1) return;
    keep_();
    // The end that was asked for, as whoever asked expects it.
    std::signal(signal, SIG_DFL);
    std::raise(signal);
  });
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) std::signal(signal, Hear);
}

}  // namespace orm
