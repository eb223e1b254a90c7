// RichTextBox: a text with looks, and a bar of commands above it.
#include <QActionGroup>
#include <QComboBox>
#include <QMenu>
#include <QMimeData>
#include <QTextEdit>
#include <QTextList>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <functional>
#include <tuple>

#include "desktop/controls/rich_text_document.h"
#include "desktop/controls/views.h"
#include "desktop/dress/look.h"
#include "desktop/icons.h"
#include "desktop/pasted_text.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

// A paragraph counts once for itself and once for its text.
constexpr TextRoom kRoom{kLongestRichText, kLongestRichParagraph, kMostRichPieces / 2 - 1};

// Takes what a file of rich text can hold.
class RichTextEdit : public QTextEdit {
 public:
  using QTextEdit::QTextEdit;

 protected:
  void insertFromMimeData(const QMimeData* source) override {
    if (isReadOnly()) return;
    const QString text = FitForPasting(source->text(), *document(), kRoom, this);
    if (!text.isEmpty()) textCursor().insertText(text);
    ensureCursorVisible();
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->text().isEmpty() || event->text()[0] < QChar(' ') ||
        event->key() == Qt::Key_Delete || HasRoom(*document(), 1, kRoom, this))
      QTextEdit::keyPressEvent(event);
  }
};

class RichTextView : public ControlView {
 public:
  RichTextView(RichTextBox& box, FormHost& host)
      : ControlView(box, host),
        box_(box),
        whole_(new QWidget(host.Window())),
        bar_(new QToolBar(whole_)),
        edit_(new RichTextEdit(whole_)) {
    // Paper in dark colours too: what is written has colours of its own.
    QPalette paper = edit_->palette();
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    edit_->setPalette(paper);
    edit_->setAcceptRichText(false);  // tables and pictures of other programs could not be kept
    edit_->setMinimumSize(CharactersWide(*edit_, 76), edit_->fontMetrics().lineSpacing() * 22);
    auto* column = new QVBoxLayout(whole_);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(bar_);
    column->addWidget(edit_);
    FillBar();
    UseWithin(edit_, whole_);
    connect(edit_, &QTextEdit::textChanged, this, [this] { Edited(); });
    connect(edit_, &QTextEdit::cursorPositionChanged, this, [this] { ShowLooks(); });
  }

  bool Grows() const override { return true; }
  std::string Shown() const override {
    return PlainText(ReadDocument(*edit_->document(), box_.Document()));
  }

  void Refresh() override {
    ControlView::Refresh();
    edit_->setReadOnly(box_.ReadOnly());
    bar_->setVisible(!box_.ReadOnly());
    if (taking_ || ReadDocument(*edit_->document(), box_.Document()) == box_.Document()) return;
    taking_ = true;
    FillDocument(*edit_->document(), box_.Document());
    edit_->moveCursor(QTextCursor::Start);
    taking_ = false;
    ShowLooks();
  }

 private:
  QAction* AddSwitch(const QString& letter, const QString& tip, const QKeySequence& key,
                     void (QFont::*look)(bool), const std::function<void(bool)>& apply) {
    auto* action = bar_->addAction(letter);
    action->setCheckable(true);
    action->setShortcut(key);
    action->setToolTip(tip + " (" + key.toString(QKeySequence::NativeText) + ")");
    QFont font = bar_->font();
    (font.*look)(true);
    action->setFont(font);
    bar_->widgetForAction(action)->setFont(font);
    connect(action, &QAction::triggered, edit_, apply);
    return action;
  }

  void FillBar() {
    size_ = new QComboBox(bar_);
    size_->setToolTip(QStringLiteral("Corpo del carattere"));
    size_->setAccessibleName(size_->toolTip());
    for (const int points : {8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36, 48})
      size_->addItem(QString::number(points), points);
    connect(size_, &QComboBox::activated, this, [this](int index) {
      edit_->setFontPointSize(size_->itemData(index).toInt());
      edit_->setFocus();
    });
    bar_->addWidget(size_);
    bold_ = AddSwitch(QStringLiteral("G"), QStringLiteral("Grassetto"), Qt::CTRL | Qt::Key_G,
                      &QFont::setBold,
                      [this](bool on) { edit_->setFontWeight(on ? QFont::Bold : QFont::Normal); });
    italic_ = AddSwitch(QStringLiteral("C"), QStringLiteral("Corsivo"), Qt::CTRL | Qt::Key_I,
                        &QFont::setItalic, [this](bool on) { edit_->setFontItalic(on); });
    underline_ =
        AddSwitch(QStringLiteral("S"), QStringLiteral("Sottolineato"), Qt::CTRL | Qt::Key_U,
                  &QFont::setUnderline, [this](bool on) { edit_->setFontUnderline(on); });
    AddColours();
    bar_->addSeparator();
    auto* group = new QActionGroup(bar_);
    const std::tuple<const char*, LineIcon, Qt::Alignment> sides[] = {
        {"Allineato a sinistra", LineIcon::Left, Qt::AlignLeft},
        {"Centrato", LineIcon::Centre, Qt::AlignHCenter},
        {"Allineato a destra", LineIcon::Right, Qt::AlignRight},
        {"Giustificato", LineIcon::Justified, Qt::AlignJustify}};
    for (const auto& [name, icon, side] : sides) {
      QAction* action = bar_->addAction(IconOf(icon), QString::fromLatin1(name));
      action->setCheckable(true);
      action->setData(static_cast<int>(side));
      group->addAction(action);
      alignments_.push_back(action);
      connect(action, &QAction::triggered, edit_,
              [this, where = side] { edit_->setAlignment(where); });
    }
    bar_->addSeparator();
    bullet_ = bar_->addAction(IconOf(LineIcon::Bullets), QStringLiteral("Elenco puntato"));
    bullet_->setCheckable(true);
    connect(bullet_, &QAction::triggered, this, [this](bool on) { SetBullet(on); });
  }

  void AddColours() {
    auto* button = new QToolButton(bar_);
    button->setIcon(IconOf(LineIcon::Colour));
    button->setToolTip(QStringLiteral("Colore del testo"));
    button->setAccessibleName(button->toolTip());
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    const std::pair<const char*, QColor> colours[] = {{"Nero", QColor(0, 0, 0)},
                                                      {"Rosso", QColor(192, 0, 0)},
                                                      {"Blu", QColor(0, 0, 192)},
                                                      {"Verde", QColor(0, 112, 0)}};
    for (const auto& [name, colour] : colours)
      connect(menu->addAction(QString::fromLatin1(name)), &QAction::triggered, edit_,
              [this, chosen = colour] { edit_->setTextColor(chosen); });
    button->setMenu(menu);
    bar_->addWidget(button);
  }

  void SetBullet(bool on) {
    QTextCursor cursor = edit_->textCursor();
    cursor.beginEditBlock();
    if (on) {
      cursor.createList(QTextListFormat::ListDisc);
    } else if (QTextList* list = cursor.currentList()) {
      list->remove(cursor.block());
      QTextBlockFormat format = cursor.blockFormat();
      format.setIndent(0);
      cursor.setBlockFormat(format);
    }
    cursor.endEditBlock();
  }

  // The bar shows the looks where the cursor stands.
  void ShowLooks() {
    const QTextCharFormat format = edit_->currentCharFormat();
    bold_->setChecked(format.fontWeight() >= QFont::DemiBold);
    italic_->setChecked(format.fontItalic());
    underline_->setChecked(format.fontUnderline());
    size_->setCurrentIndex(size_->findData(static_cast<int>(format.fontPointSize())));
    for (QAction* action : alignments_)
      action->setChecked(
          edit_->alignment().testFlag(static_cast<Qt::AlignmentFlag>(action->data().toInt())));
    bullet_->setChecked(edit_->textCursor().currentList() != nullptr);
  }

  void Edited() {
    if (std::exchange(taking_, true)) return;
    host_.Act([this] { box_.Edit(ReadDocument(*edit_->document(), box_.Document())); });
    taking_ = false;
    ShowLooks();
  }

  RichTextBox& box_;
  QWidget* whole_;
  QToolBar* bar_;
  QTextEdit* edit_;
  QComboBox* size_ = nullptr;
  QAction* bold_ = nullptr;
  QAction* italic_ = nullptr;
  QAction* underline_ = nullptr;
  QAction* bullet_ = nullptr;
  std::vector<QAction*> alignments_;
  bool taking_ = false;
};

}  // namespace

std::unique_ptr<ControlView> MakeRichTextView(RichTextBox& box, FormHost& host) {
  return std::make_unique<RichTextView>(box, host);
}

}  // namespace orm
