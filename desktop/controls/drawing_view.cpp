// Lavagna on the screen, with its menu: to a file or to paper.
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>
#include <array>

#include "desktop/controls/views.h"
#include "desktop/drawing/drawing_files.h"
#include "desktop/drawing/paint_drawing.h"
#include "desktop/print_whole.h"
#include "desktop/qt_text.h"
#include "runtime/failure.h"
#include "runtime/folder.h"

namespace orm {
namespace {

constexpr double kUsualZoom = 1.4;  // where the screen has room for it

struct Saved {
  const char* ending;
  DrawingKind kind;
};
constexpr std::array<Saved, 4> kSaved = {{{"svg", DrawingKind::Svg},
                                          {"png", DrawingKind::Png},
                                          {"pdf", DrawingKind::Pdf},
                                          {"dxf", DrawingKind::Dxf}}};

class DrawingWidget : public QWidget {
 public:
  DrawingWidget(Lavagna& lavagna, QWidget* parent) : QWidget(parent), lavagna_(lavagna) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(DrawingSize(lavagna_).toSize());
    setAccessibleName("Disegno");
    setToolTip("Il menù del tasto destro copia, salva o stampa il disegno");
  }
  QSize sizeHint() const override { return (DrawingSize(lavagna_) * kUsualZoom).toSize(); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    PaintDrawing(painter, lavagna_, rect());
    PaintEdge(painter, palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
  }
  void contextMenuEvent(QContextMenuEvent* event) override {
    QMenu menu(this);
    menu.addAction("&Copia", this, [this] { Copy(); });
    menu.addSeparator();
    for (const Saved& saved : kSaved)
      menu.addAction(QString("Salva come &%1...").arg(QString(saved.ending).toUpper()), this,
                     [this, &saved] { Save(saved); });
    menu.addSeparator();
    menu.addAction("S&tampa con dati e risultati...", this, [this] { Print(); });
    menu.exec(event->globalPos());
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Copy)) return Copy();
    QWidget::keyPressEvent(event);
  }

 private:
  // In pixels of the screen: at 150 % an edge that is counted in others falls between two of them.
  void PaintEdge(QPainter& painter, const QColor& colour) const {
    const QTransform toScreen = painter.deviceTransform();
    const QRect edge = toScreen.mapRect(QRectF(rect())).toRect();
    const int wide = std::max(1, static_cast<int>(toScreen.m11()));
    painter.setTransform(toScreen.inverted(), true);
    const QRect inside = edge.adjusted(wide, wide, -wide, -wide);
    for (const QRect& side : QRegion(edge) - QRegion(inside)) painter.fillRect(side, colour);
  }
  // As a picture, and as SVG for programs that can take it.
  void Copy() {
    auto* copied = new QMimeData;
    copied->setImageData(PictureOf(lavagna_));
    copied->setData("image/svg+xml", QByteArray::fromStdString(FileOf(lavagna_, DrawingKind::Svg)));
    QApplication::clipboard()->setMimeData(copied);
  }
  // The chosen path with its ending; empty when the person gave up. The ending comes first, then
  // the question whether a file of that name may go.
  QString AskPath(const QString& ending) {
    for (QString name = "disegno." + ending;;) {
      QString path = QFileDialog::getSaveFileName(this, "Salva il disegno", name,
                                                  ending.toUpper() + " (*." + ending + ")", nullptr,
                                                  QFileDialog::DontConfirmOverwrite);
      if (path.isEmpty()) return path;
      if (!path.endsWith("." + ending, Qt::CaseInsensitive)) path += "." + ending;
      if (!QFileInfo::exists(path) || MayReplace(path)) return path;
      name = path;
    }
  }
  bool MayReplace(const QString& path) {
    QMessageBox box(QMessageBox::Question, "ATTENZIONE",
                    "Il file\n" + path + "\nc'è già. Sostituirlo?",
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
  }
  // An older picture of that name stays until the new one is whole.
  void Save(const Saved& saved) {
    const QString path = AskPath(saved.ending);
    if (path.isEmpty()) return;
    const QFileInfo file(path);
    try {
      WorkFolder(FromQt(file.absolutePath()))
          .Replace(FromQt(file.fileName()), FileOf(lavagna_, saved.kind));
    } catch (const RuntimeFailure& failure) {
      WarnPlainly(
          this, "Non è stato possibile scrivere il file\n" + path + "\n" + ToQt(failure.Reason()));
    }
  }
  void Print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(ToQt(lavagna_.Owner().Title()).trimmed());
    printer.setPageOrientation(SheetOf(lavagna_));
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted) return;
    PrintWhole(printer, this, [&] {
      QPainter painter;
      if (!painter.begin(&printer)) return false;
      const double zoom = printer.resolution() / 96.0;
      painter.scale(zoom, zoom);
      const QSizeF page = printer.pageLayout().paintRectPixels(printer.resolution()).size();
      PaintFormPage(painter, page / zoom, lavagna_);
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
