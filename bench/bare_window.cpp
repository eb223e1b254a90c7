// The least window program of Qt: the measure for the start of the others.
#include <QApplication>
#include <QMainWindow>

int main(int count, char** words) {
  QApplication app(count, words);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("bare_window"));
  window.resize(1000, 700);
  window.show();
  return app.exec();
}
