#include "desktop/guide/help_view.h"

#include <QFileInfo>
#include <QPixmap>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/dress/page_dress.h"
#include "desktop/print_whole.h"
#include "desktop/qt_text.h"

// The pictures lie in a static library, which a program takes them from only when told.
static void TakePictures() { Q_INIT_RESOURCE(help); }

namespace orm {
namespace {

constexpr double kPoints = 10.5;  // of the body at 100 %
constexpr int kWidestLine = 88;   // letters; longer lines are hard to follow
constexpr int kMargin = 28;       // pixels around the page
constexpr int kLeastPicture = 200, kWidestPicture = 620;  // pixels
constexpr double kPaperPoints = 9.5;                      // of the body on paper

const HelpPage* FindPage(const std::vector<HelpBook>& books, const QString& file) {
  for (const HelpBook& book : books)
    for (const HelpPage& page : book.pages)
      if (ToQt(page.file) == file) return &page;
  return nullptr;
}

// Pictures have their place in the program, whatever folder the page says.
QPixmap PictureOf(const QUrl& name) {
  return QPixmap(":/guida/" + QFileInfo(name.path()).completeBaseName() + ".png");
}

// A page for the printer, whose pictures are found like those on the screen.
class PaperPage : public QTextDocument {
 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    return type == ImageResource ? PictureOf(name) : QTextDocument::loadResource(type, name);
  }
};

}  // namespace

HelpView::HelpView(const std::vector<HelpBook>& books, QWidget* parent)
    : QTextBrowser(parent), books_(books) {
  TakePictures();
  setObjectName(QStringLiteral("page"));
  setFrameShape(QFrame::NoFrame);
  setOpenExternalLinks(false);
  setLineWrapMode(QTextEdit::FixedPixelWidth);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // lines are as wide before a page as after
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) {
    file_ = url.path().mid(1);
    Dress();
    GoTo(url.fragment(QUrl::FullyDecoded));
  });
}

void HelpView::Open(const QString& file, const QString& section) {
  QUrl url(QStringLiteral("guida:/") + file);
  if (!section.isEmpty()) url.setFragment(section, QUrl::DecodedMode);
  setSource(url, QTextDocument::MarkdownResource);
}

const HelpPage* HelpView::Page() const { return FindPage(books_, file_); }

QVariant HelpView::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::ImageResource) {
    const QPixmap picture = PictureOf(name);
    const int room = PictureRoom();
    return picture.width() > room ? picture.scaledToWidth(room, Qt::SmoothTransformation) : picture;
  }
  const HelpPage* page = FindPage(books_, name.path().mid(1));
  return page == nullptr ? QStringLiteral("# Pagina non trovata\n") : ToQt(page->text);
}

// No wider than the lines of a page that fills the window.
int HelpView::PictureRoom() const {
  return std::clamp(lineWrapColumnOrWidth() - 2 * kMargin, kLeastPicture, kWidestPicture);
}

double HelpView::BodyPoints() const { return kPoints * zoom_ / 100; }

void HelpView::Dress() {
  QFont font = document()->defaultFont();
  font.setPointSizeF(BodyPoints());
  document()->setDefaultFont(font);
  document()->setDocumentMargin(kMargin);
  DressPage(*document(), ColoursFor(palette()), BodyPoints());
  Mark(words_);
}

void HelpView::GoTo(const QString& section) {
  if (section.isEmpty()) return;
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || block.text() != section) continue;
    QTextCursor cursor(block);
    setTextCursor(cursor);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top() - 8);
    return;
  }
}

void HelpView::Mark(const QString& words) {
  words_ = words;
  QList<QTextEdit::ExtraSelection> marks;
  QTextCharFormat format;
  format.setBackground(QColor(255, 224, 120));
  format.setForeground(Qt::black);
  for (const QString& typed : words.split(' ', Qt::SkipEmptyParts)) {
    const QString word = ToQt(PlainLetters(FromQt(typed)));
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
      const QString text = ToQt(PlainLetters(FromQt(block.text())));
      for (auto at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + word.size())) {
        QTextCursor cursor(block);
        cursor.setPosition(block.position() + static_cast<int>(at));
        cursor.setPosition(cursor.position() + static_cast<int>(word.size()),
                           QTextCursor::KeepAnchor);
        marks.push_back({cursor, format});
      }
    }
  }
  setExtraSelections(marks);
}

void HelpView::SetZoom(int percent) {
  zoom_ = std::clamp(percent, kLeastZoom, kMostZoom);
  QResizeEvent same(size(), size());
  resizeEvent(&same);
  LayAnew();
}

// The page stays where it was.
void HelpView::LayAnew() {
  const int at = verticalScrollBar()->value(), most = std::max(1, verticalScrollBar()->maximum());
  reload();
  verticalScrollBar()->setValue(at * verticalScrollBar()->maximum() / most);
}

void HelpView::resizeEvent(QResizeEvent* event) {
  QFont font;
  font.setPointSizeF(BodyPoints());
  const int most = QFontMetrics(font).averageCharWidth() * kWidestLine + 2 * kMargin;
  const int before = PictureRoom();
  setLineWrapColumnOrWidth(std::min(viewport()->width(), most));
  QTextBrowser::resizeEvent(event);
  if (PictureRoom() != before && !file_.isEmpty())
    QMetaObject::invokeMethod(
        this, [this] { LayAnew(); }, Qt::QueuedConnection);
}

void HelpView::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QTextBrowser::wheelEvent(event);
  SetZoom(zoom_ + (event->angleDelta().y() > 0 ? 10 : -10));
  event->accept();
}

void HelpView::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !file_.isEmpty()) LayAnew();
}

void HelpView::Print() {
  const HelpPage* page = Page();
  if (page == nullptr) return;
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(ToQt(page->title));
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() != QDialog::Accepted) return;
  PaperPage paper;
  QFont font = document()->defaultFont();
  font.setPointSizeF(kPaperPoints);
  paper.setDefaultFont(font);
  paper.setMarkdown(ToQt(page->text));
  DressPage(paper, ColoursOnPaper(), kPaperPoints);
  PrintWhole(printer, this, [&] {
    paper.print(&printer);
    return printer.printerState() != QPrinter::Error;
  });
}

}  // namespace orm
