// RichTextBox: a text with looks, to read and to write.
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextEdit>

#include "desktop/look.h"
#include "desktop/qt_text.h"
#include "desktop/rich_convert.h"
#include "desktop/views.h"

namespace orm {
namespace {

class RichEdit : public QTextEdit {
 public:
  explicit RichEdit(QWidget* parent) : QTextEdit(parent) {
    setMinimumSize(CharactersWide(*this, 40), fontMetrics().lineSpacing() * 10);
    setAcceptRichText(false);
  }
  QSize sizeHint() const override {
    return {CharactersWide(*this, 84), fontMetrics().lineSpacing() * 28};
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (isReadOnly() || event->modifiers() != Qt::ControlModifier)
      return QTextEdit::keyPressEvent(event);
    switch (event->key()) {
      case Qt::Key_B:
        return ToggleBold();
      case Qt::Key_I:
        return setFontItalic(!fontItalic());
      case Qt::Key_U:
        return setFontUnderline(!fontUnderline());
      default:
        QTextEdit::keyPressEvent(event);
    }
  }
  void contextMenuEvent(QContextMenuEvent* event) override {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    if (!isReadOnly()) {
      menu->addSeparator();
      menu->addAction("Grassetto\tCtrl+B", this, [this] { ToggleBold(); });
      menu->addAction("Corsivo\tCtrl+I", this, [this] { setFontItalic(!fontItalic()); });
      menu->addAction("Sottolineato\tCtrl+U", this, [this] { setFontUnderline(!fontUnderline()); });
    }
    menu->exec(event->globalPos());
  }

 private:
  void ToggleBold() {
    setFontWeight(fontWeight() >= QFont::DemiBold ? QFont::Normal : QFont::Bold);
  }
};

class RichTextView : public ControlView {
 public:
  RichTextView(RichTextBox& box, FormHost& host)
      : ControlView(box, host), box_(box), edit_(new RichEdit(host.Window())) {
    UseField(edit_);
    connect(edit_, &QTextEdit::textChanged, this, [this] { Edited(); });
  }
  bool Grows() const override { return true; }
  std::string Shown() const override { return FromQt(edit_->toPlainText()); }
  void Refresh() override {
    ControlView::Refresh();
    edit_->setReadOnly(box_.ReadOnly());
    if (taking_ || (filled_ && box_.Document() == shown_)) return;
    taking_ = true;
    shown_ = box_.Document();
    WriteInto(*edit_->document(), shown_);
    edit_->moveCursor(QTextCursor::Start);
    filled_ = true;
    taking_ = false;
  }

 private:
  void Edited() {
    if (std::exchange(taking_, true)) return;
    shown_ = ReadFrom(*edit_->document(), shown_);
    host_.Act([this] { box_.Edit(shown_); });
    taking_ = false;
  }

  RichTextBox& box_;
  RichEdit* edit_;
  RichDocument shown_;
  bool filled_ = false;
  bool taking_ = false;
};

}  // namespace

std::unique_ptr<ControlView> MakeRichTextView(RichTextBox& box, FormHost& host) {
  return std::make_unique<RichTextView>(box, host);
}

}  // namespace orm
