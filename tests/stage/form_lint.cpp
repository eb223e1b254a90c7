#include "tests/stage/form_lint.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QStyleOptionFrame>
#include <cmath>
#include <set>

#include "desktop/player/form_dialog.h"
#include "desktop/player/heading_line.h"
#include "desktop/qt_text.h"
#include "tests/unit/form_rules.h"

namespace orm {
namespace {

constexpr QSize kLeastScreen(1024, 768);
using Faults = std::vector<std::string>;

QRect PlaceOf(const QWidget& widget, const QWidget& window) {
  return {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
}

void LintNames(const FormDialog& dialog, Faults& faults) {
  for (const Control* control : dialog.Model().Controls()) {
    const QWidget* field = dialog.ViewOf(*control).Field();
    if (control->TakesFocus() && field->isVisible() && field->accessibleName().isEmpty())
      faults.push_back(control->Name() + ": senza etichetta");
  }
}

void LintOrder(const FormDialog& dialog, Faults& faults) {
  const Control* before = nullptr;
  for (const Control* control : dialog.ReadingOrder()) {
    const QWidget* field = dialog.ViewOf(*control).Field();
    if (!control->TakesFocus() || !field->isVisible()) continue;
    if (before != nullptr) {
      const QRect a = PlaceOf(*dialog.ViewOf(*before).Field(), dialog);
      const QRect b = PlaceOf(*field, dialog);
      // Beside each other in columns: the right column may begin above the left one's end.
      const bool nextColumn = b.left() > a.right();
      const bool below = b.top() >= a.bottom() - 2;
      if (!below && !nextColumn)
        faults.push_back(control->Name() + ": non sta dopo " + before->Name());
    }
    before = control;
  }
}

// The least size in which the widget shows its text whole.
QSize Needed(const QWidget& widget) {
  if (const auto* label = dynamic_cast<const QLabel*>(&widget)) {
    const int width = label->width();
    if (label->wordWrap()) return {0, label->heightForWidth(width)};
    return label->sizeHint();
  }
  if (const auto* group = dynamic_cast<const QGroupBox*>(&widget))
    return {group->fontMetrics().horizontalAdvance(group->title()) + 16, 0};
  if (dynamic_cast<const QAbstractButton*>(&widget) != nullptr) return widget.sizeHint();
  if (const auto* line = dynamic_cast<const QLineEdit*>(&widget)) {
    // Long texts scroll in their field; numbers must be seen whole.
    const bool number = line->alignment() & Qt::AlignRight;
    const QMargins frame = line->textMargins();
    const int text = line->fontMetrics().horizontalAdvance(line->text());
    return {number ? text + frame.left() + frame.right() + 8 : 0, line->minimumSizeHint().height()};
  }
  if (dynamic_cast<const QComboBox*>(&widget) != nullptr) return widget.minimumSizeHint();
  return widget.minimumSizeHint();
}

// A form of a chain tells where one is, in the same place as all others.
void LintHeading(const FormDialog& dialog, Faults& faults) {
  const HeadingLine* line = dialog.TopLine();
  if (line == nullptr) return;
  const QMargins edge = dialog.layout()->contentsMargins();
  if (line->pos() != QPoint(edge.left(), edge.top()))
    faults.push_back("il percorso non sta in cima");
  if (line->width() < line->sizeHint().width()) faults.push_back("il percorso è tagliato");
  if (dialog.Model().Step().empty()) faults.push_back("il percorso non dice il passo");
}

void LintRoom(const FormDialog& dialog, Faults& faults) {
  for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
    const bool ours = !widget->objectName().startsWith("qt_") && widget->isVisible() &&
                      widget->objectName() != "avviso";
    if (!ours || widget->window() != &dialog) continue;
    const bool matters = dynamic_cast<const QLabel*>(widget) != nullptr ||
                         dialog.Model().Find(FromQt(widget->objectName())) != nullptr;
    if (!matters) continue;
    std::string name = FromQt(widget->objectName());
    if (const auto* label = dynamic_cast<const QLabel*>(widget))
      name += "\"" + FromQt(label->text()) + "\"";
    const QSize needed = Needed(*widget);
    if (widget->width() < needed.width() || widget->height() < needed.height())
      faults.push_back(name + ": tagliato, serve " + FromQt(QString::number(needed.width())) + "x" +
                       FromQt(QString::number(needed.height())) + " e ha " +
                       FromQt(QString::number(widget->width())) + "x" +
                       FromQt(QString::number(widget->height())));
    const QWidget* parent = widget->parentWidget();
    if (!parent->rect().contains(widget->geometry()))
      faults.push_back(name + ": esce dal suo riquadro");
  }
  const QSize whole = dialog.LeastSize() + FormDialog::kFrame;
  if (whole.boundedTo(kLeastScreen) != whole)
    faults.push_back("la finestra non sta nello schermo più piccolo: " +
                     FromQt(QString("%1x%2").arg(whole.width()).arg(whole.height())));
}

// A screen of broken scale may round a window down: its last point must not be one of the content,
// or bars come up.
void LintRounding(const FormDialog& dialog, Faults& faults) {
  if (dialog.devicePixelRatioF() == std::floor(dialog.devicePixelRatioF())) return;
  const auto* area = dialog.findChild<QScrollArea*>();
  const QSize free = area->viewport()->size() - area->widget()->layout()->totalMinimumSize();
  const QSize room = dialog.screen()->availableSize() - FormDialog::kFrame - dialog.size();
  if ((free.width() < 1 && room.width() > 0) || (free.height() < 1 && room.height() > 0))
    faults.push_back("la finestra non ha un punto di margine per l'arrotondamento");
}

bool HasName(const QWidget& field, const QWidget& window) {
  if (const auto* button = dynamic_cast<const QAbstractButton*>(&field))
    return !button->text().isEmpty() || !button->accessibleName().isEmpty();
  for (const QLabel* label : window.findChildren<QLabel*>())
    if (label->buddy() == &field) return true;
  return !field.accessibleName().isEmpty();
}

bool IsReached(const QWidget& widget, const QWidget& window) {
  return widget.isVisible() && widget.window() == &window && widget.isEnabled() &&
         (widget.focusPolicy() & Qt::TabFocus) != 0;
}

QString CaptionOf(const QWidget& widget) {
  if (const auto* button = dynamic_cast<const QAbstractButton*>(&widget)) return button->text();
  const auto* label = dynamic_cast<const QLabel*>(&widget);
  return label != nullptr && label->buddy() != nullptr ? label->text() : QString();
}

void LintTabs(const QWidget& window, Faults& faults) {
  const QWidget* before = nullptr;
  for (const QWidget* at = window.nextInFocusChain(); at != &window; at = at->nextInFocusChain()) {
    if (!IsReached(*at, window)) continue;
    if (!HasName(*at, window)) faults.push_back(FromQt(at->objectName()) + ": senza nome");
    if (before != nullptr) {
      const QRect a = PlaceOf(*before, window), b = PlaceOf(*at, window);
      if (b.top() < a.bottom() - 2 && b.left() <= a.right())
        faults.push_back(FromQt(at->objectName() + CaptionOf(*at)) + ": non sta dopo " +
                         FromQt(before->objectName() + CaptionOf(*before)));
    }
    before = at;
  }
}

}  // namespace

std::vector<std::string> LintWindow(const QWidget& window) {
  Faults faults;
  std::set<QString> letters;
  int defaults = 0;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->window() != &window) continue;
    const auto* button = dynamic_cast<const QPushButton*>(widget);
    defaults += button != nullptr && button->isDefault() ? 1 : 0;
    const QString letter = QKeySequence::mnemonic(CaptionOf(*widget)).toString();
    if (!letter.isEmpty() && !letters.insert(letter).second)
      faults.push_back(FromQt(letter) + ": due volte");
    const bool text = button != nullptr || dynamic_cast<const QLabel*>(widget) != nullptr;
    const QSize needed = text ? Needed(*widget) : QSize();
    if (widget->width() < needed.width() || widget->height() < needed.height())
      faults.push_back(FromQt(widget->objectName() + CaptionOf(*widget)) + ": tagliato");
  }
  if (defaults > 1) faults.emplace_back("più di un pulsante predefinito");
  LintTabs(window, faults);
  return faults;
}

std::vector<std::string> LintForm(const FormDialog& dialog) {
  Faults faults = FormRules::Broken(dialog.Model());
  LintNames(dialog, faults);
  LintOrder(dialog, faults);
  LintHeading(dialog, faults);
  LintRoom(dialog, faults);
  LintRounding(dialog, faults);
  return faults;
}

}  // namespace orm
