#include "desktop/print_whole.h"

#include <sys/mman.h>

#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrinter>

#include "desktop/qt_text.h"
#include "runtime/failure.h"
#include "runtime/folder.h"

namespace orm {
namespace {

// The printer writes to a name, and does not tell when a disk is full: it gets a file in memory.
QByteArray PrintedBytes(QPrinter& printer, const std::function<bool()>& paint) {
  QFile memory;
  if (!memory.open(::memfd_create("orm2002-stampa", MFD_CLOEXEC), QIODevice::ReadWrite,
                   QFileDevice::AutoCloseHandle))
    return {};
  printer.setOutputFileName(QStringLiteral("/proc/self/fd/%1").arg(memory.handle()));
  printer.setOutputFormat(QPrinter::PdfFormat);
  if (!paint()) return {};
  memory.seek(0);
  return memory.readAll();
}

}  // namespace

void WarnPlainly(QWidget* parent, const QString& text) {
  QMessageBox box(QMessageBox::Warning, QStringLiteral("ATTENZIONE"), text, QMessageBox::Ok,
                  parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool PrintWhole(QPrinter& printer, QWidget* parent, const std::function<bool()>& paint) {
  const QString target = printer.outputFileName();
  const QString failed = QStringLiteral("La stampa non è riuscita.\n");
  if (target.isEmpty()) {
    if (paint()) return true;
    WarnPlainly(parent, failed + QStringLiteral("Controllare la stampante e riprovare."));
    return false;
  }
  const QByteArray bytes = PrintedBytes(printer, paint);
  printer.setOutputFileName(target);
  printer.setOutputFormat(QPrinter::PdfFormat);
  try {
    if (!bytes.startsWith("%PDF") || !bytes.trimmed().endsWith("%%EOF"))
      throw RuntimeFailure("Il documento PDF non può essere composto.");
    const QFileInfo file(target);
    WorkFolder(FromQt(file.absolutePath())).Replace(FromQt(file.fileName()), bytes.toStdString());
    return true;
  } catch (const RuntimeFailure& failure) {
    WarnPlainly(parent, failed + target + '\n' + ToQt(failure.Text()));
    return false;
  }
}

}  // namespace orm
