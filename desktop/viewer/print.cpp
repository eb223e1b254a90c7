// The print dialog and the preview.
#include "desktop/viewer/print.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/export/pages.h"
#include "desktop/icons.h"
#include "desktop/print_whole.h"

namespace orm {
namespace {

void Prepare(QPrinter& printer, const QString& title) {
  printer.setDocName(title);
  printer.setCreator(QStringLiteral("ORM2002"));
  ReportPages::PrepareA4(printer);
}

// True when the pages have been printed.
bool AskAndPrint(QPrinter& printer, const PrintedReport& report, QWidget* parent) {
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle(QStringLiteral("Stampa"));
  dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                    QAbstractPrintDialog::PrintCollateCopies);
  dialog.setMinMax(1, ReportPages(report.text, printer, report.notes).Count());
  if (dialog.exec() != QDialog::Accepted) return false;
  const ReportPages pages(report.text, printer, report.notes);
  const bool range = printer.printRange() == QPrinter::PageRange;
  const int first = range ? qBound(1, printer.fromPage(), pages.Count()) : 1;
  const int last = range ? qBound(first, printer.toPage(), pages.Count()) : pages.Count();
  return PrintWhole(printer, parent,
                    [&] { return PaintPages(pages, printer, first - 1, last - 1); });
}

class PreviewDialog : public QDialog {
 public:
  PreviewDialog(const PrintedReport& report, QWidget* parent)
      : QDialog(parent),
        report_(report),
        printer_(QPrinter::HighResolution),
        pages_(new QPrintPreviewWidget(&printer_, this)),
        number_(new QLabel(this)) {
    setWindowTitle(QStringLiteral("Anteprima di stampa - ") + report.title);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Prepare(printer_, report.title);
    connect(pages_, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter* printer) {
      const ReportPages pages(report_.text, *printer, report_.notes);
      PaintPages(pages, *printer, 0, pages.Count() - 1);
    });
    connect(pages_, &QPrintPreviewWidget::previewChanged, this, [this] { ShowNumber(); });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(Commands());
    column->addWidget(pages_, 1);
    pages_->setFocus();
    resize(760, 700);
  }

 private:
  QToolButton* Button(LineIcon icon, const QString& caption, const QString& tip) {
    auto* button = new QToolButton(this);
    button->setIcon(IconOf(icon));
    button->setText(caption);
    button->setToolTip(tip);
    button->setAutoRaise(true);
    button->setIconSize(QSize(20, 20));
    button->setToolButtonStyle(caption.isEmpty() ? Qt::ToolButtonIconOnly
                                                 : Qt::ToolButtonTextBesideIcon);
    return button;
  }

  QLayout* Commands() {
    auto* print =
        Button(LineIcon::Print, QStringLiteral("Stampa..."), QStringLiteral("Stampa (Ctrl+P)"));
    auto* up = Button(LineIcon::Up, {}, QStringLiteral("Pagina precedente (Pag su)"));
    auto* down = Button(LineIcon::Down, {}, QStringLiteral("Pagina successiva (Pag giù)"));
    auto* smaller = Button(LineIcon::Smaller, {}, QStringLiteral("Riduci (Ctrl+-)"));
    auto* larger = Button(LineIcon::Larger, {}, QStringLiteral("Ingrandisci (Ctrl++)"));
    auto* width = Button(LineIcon::Preview, QStringLiteral("Larghezza"),
                         QStringLiteral("Adatta alla larghezza"));
    auto* whole = Button(LineIcon::Preview, QStringLiteral("Pagina intera"),
                         QStringLiteral("Adatta alla pagina"));
    auto* close = new QPushButton(QStringLiteral("&Chiudi"), this);
    print->setShortcut(QKeySequence::Print);
    smaller->setShortcut(QKeySequence::ZoomOut);
    larger->setShortcut(QKeySequence::ZoomIn);
    up->setShortcut(Qt::Key_PageUp);
    down->setShortcut(Qt::Key_PageDown);
    connect(print, &QToolButton::clicked, this, [this] {
      if (AskAndPrint(printer_, report_, this)) accept();
    });
    connect(up, &QToolButton::clicked, this, [this] { GoTo(pages_->currentPage() - 1); });
    connect(down, &QToolButton::clicked, this, [this] { GoTo(pages_->currentPage() + 1); });
    connect(smaller, &QToolButton::clicked, pages_, [this] { pages_->zoomOut(); });
    connect(larger, &QToolButton::clicked, pages_, [this] { pages_->zoomIn(); });
    connect(width, &QToolButton::clicked, pages_, &QPrintPreviewWidget::fitToWidth);
    connect(whole, &QToolButton::clicked, pages_, &QPrintPreviewWidget::fitInView);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* row = new QHBoxLayout;
    row->setContentsMargins(8, 6, 8, 6);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{print, up, number_, down, smaller, larger, width, whole})
      row->addWidget(widget);
    row->addStretch(1);
    row->addWidget(close);
    return row;
  }

  void GoTo(int page) {
    pages_->setCurrentPage(qBound(1, page, pages_->pageCount()));
    ShowNumber();
  }

  void ShowNumber() {
    number_->setText(
        QStringLiteral("Pagina %1 di %2").arg(pages_->currentPage()).arg(pages_->pageCount()));
  }

  PrintedReport report_;
  QPrinter printer_;
  QPrintPreviewWidget* pages_;
  QLabel* number_;
};

}  // namespace

void PrintReport(const PrintedReport& report, QWidget* parent) {
  QPrinter printer(QPrinter::HighResolution);
  Prepare(printer, report.title);
  AskAndPrint(printer, report, parent);
}

void PreviewReport(const PrintedReport& report, QWidget* parent) {
  PreviewDialog(report, parent).exec();
}

}  // namespace orm
