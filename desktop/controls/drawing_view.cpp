// Lavagna on the screen, with its menu: to a file or to paper.
#include <QBuffer>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QStyleOptionFocusRect>

#include "desktop/controls/views.h"
#include "desktop/paint_drawing.h"
#include "desktop/print_whole.h"
#include "desktop/qt_text.h"
#include "dialogs/drawing/svg.h"
#include "runtime/failure.h"
#include "runtime/folder.h"

namespace orm {
namespace {

constexpr double kUsualZoom = 1.4;   // where the screen has room for it
constexpr int kPictureWidth = 1800;  // pixels of a saved PNG

class DrawingWidget : public QWidget {
 public:
  DrawingWidget(Lavagna& lavagna, QWidget* parent) : QWidget(parent), lavagna_(lavagna) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(DrawingSize(lavagna_).toSize());
    setAccessibleName("Disegno");
    setToolTip("Il menù del tasto destro salva o stampa il disegno");
  }
  QSize sizeHint() const override { return (DrawingSize(lavagna_) * kUsualZoom).toSize(); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    PaintDrawing(painter, lavagna_, rect());
    painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
  void contextMenuEvent(QContextMenuEvent* event) override {
    QMenu menu(this);
    menu.addAction("Salva come SVG...", this, [this] { SaveSvg(); });
    menu.addAction("Salva come PNG...", this, [this] { SavePng(); });
    menu.addSeparator();
    menu.addAction("Stampa...", this, [this] { Print(); });
    menu.exec(event->globalPos());
  }

 private:
  // The chosen path with its ending; empty when the person gave up.
  QString AskPath(const QString& ending) {
    QString path = QFileDialog::getSaveFileName(this, "Salva il disegno", "disegno." + ending,
                                                ending.toUpper() + " (*." + ending + ")");
    if (path.isEmpty() || path.endsWith("." + ending, Qt::CaseInsensitive)) return path;
    path += "." + ending;
    return !QFileInfo::exists(path) || MayReplace(path) ? path : QString();
  }
  // The name was asked for before it had its ending.
  bool MayReplace(const QString& path) {
    QMessageBox box(QMessageBox::Question, "ATTENZIONE", "Il file c'è già. Sostituirlo?\n" + path,
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
  }
  // An older picture of that name stays until the new one is whole.
  void Write(const QString& path, const std::string& bytes) {
    const QFileInfo file(path);
    try {
      WorkFolder(FromQt(file.absolutePath())).Replace(FromQt(file.fileName()), bytes);
    } catch (const RuntimeFailure& failure) {
      WarnPlainly(
          this, "Non è stato possibile scrivere il file\n" + path + "\n" + ToQt(failure.Reason()));
    }
  }
  void SaveSvg() {
    const QString path = AskPath("svg");
    if (!path.isEmpty()) Write(path, SvgOf(lavagna_));
  }
  void SavePng() {
    const QString path = AskPath("png");
    if (path.isEmpty()) return;
    const QSizeF size = DrawingSize(lavagna_) * (kPictureWidth / DrawingSize(lavagna_).width());
    QImage picture(size.toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    PaintDrawing(painter, lavagna_, picture.rect());
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!picture.save(&buffer, "PNG"))  // no memory for it, say
      return WarnPlainly(this, "Non è stato possibile comporre l'immagine\n" + path);
    Write(path, bytes.toStdString());
  }
  void Print() {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted) return;
    const QRect paper = printer.pageLayout().paintRectPixels(printer.resolution());
    PrintWhole(printer, this, [&] {
      QPainter painter;
      if (!painter.begin(&printer)) return false;
      PaintDrawing(painter, lavagna_, paper.translated(-paper.topLeft()));
      return painter.end();
    });
  }
  Lavagna& lavagna_;
};

class DrawingView : public ControlView {
 public:
  DrawingView(Lavagna& lavagna, FormHost& host) : ControlView(lavagna, host), lavagna_(lavagna) {
    UseBare(new DrawingWidget(lavagna, host.Window()));
  }
  void Refresh() override {
    const QString tip = Field()->toolTip();
    ControlView::Refresh();
    Field()->setToolTip(tip);
    Field()->update();
  }
  bool Grows() const override { return true; }
  std::string Shown() const override { return lavagna_.ShownText(); }

 private:
  Lavagna& lavagna_;
};

}  // namespace

std::unique_ptr<ControlView> MakeDrawingView(Lavagna& lavagna, FormHost& host) {
  return std::make_unique<DrawingView>(lavagna, host);
}

}  // namespace orm
