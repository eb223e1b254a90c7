// DatePicker: a day typed as gg/mm/aaaa or picked from a calendar.
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QToolButton>
#include <QWidgetAction>
#include <algorithm>

#include "desktop/controls/entry_view.h"
#include "desktop/controls/views.h"
#include "desktop/qt_text.h"

namespace orm {
namespace {

QDate DateToQt(const Date& d) { return {d.year, d.month, d.day}; }

class DateView : public EntryView {
 public:
  DateView(DatePicker& picker, FormHost& host)
      : EntryView(picker, host),
        picker_(picker),
        before_(picker.Value()),
        button_(new QToolButton(host.Window())) {
    SetCharacters(11);
    UseField(&Line());
    button_->setArrowType(Qt::DownArrow);
    button_->setFocusPolicy(Qt::ClickFocus);
    button_->setToolTip("Calendario (Alt+freccia giù)");
    button_->setAccessibleName("Calendario");
    AddBehind(button_);
    connect(button_, &QToolButton::clicked, this, [this] { OpenCalendar(); });
  }

 protected:
  std::string Admit(QString& text, int&, const QString& inserted) override {
    if (inserted.size() > 1) text = text.trimmed();
    const bool written = std::all_of(text.cbegin(), text.cend(), [](QChar c) {
      return c.isDigit() || QStringLiteral("/-.").contains(c);
    });
    return written && text.size() <= 12 ? "" : DatePicker::Writing();
  }
  Verdict Take(const std::string& text) override {
    const bool whole = WrittenDate(text) && text.size() - text.find_last_of("/-.") == 5;
    return {picker_.Enter(text), whole || text.size() >= 10};
  }
  QString Substitute(const QKeyEvent& key) const override {
    const bool point = key.key() == Qt::Key_Period || key.key() == Qt::Key_Comma;
    return point && (key.modifiers() & Qt::KeypadModifier) ? QStringLiteral("/") : QString();
  }
  void TakeBack() override { picker_.SetValue(before_); }
  void Keep() override { before_ = picker_.Value(); }
  bool Means(const std::string& text) const override { return ParseDate(text) == picker_.Value(); }
  std::string RestingText() const override { return ShortDate(picker_.Value()); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const auto* key = static_cast<QKeyEvent*>(event);
      const bool opens = key->key() == Qt::Key_F4 ||
                         (key->key() == Qt::Key_Down && (key->modifiers() & Qt::AltModifier));
      if (opens) return OpenCalendar(), true;
    }
    return EntryView::eventFilter(watched, event);
  }

 private:
  void OpenCalendar() {
    Line().setFocus();
    QMenu menu(button_);
    auto* calendar = new QCalendarWidget(&menu);
    calendar->setLocale(QLocale(QLocale::Italian, QLocale::Italy));
    calendar->setFirstDayOfWeek(Qt::Monday);
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setDateRange(DateToQt(picker_.First()), DateToQt(picker_.Last()));
    calendar->setSelectedDate(DateToQt(picker_.Value()));
    QWidgetAction action(&menu);
    action.setDefaultWidget(calendar);
    menu.addAction(&action);
    QDate chosen;
    const auto choose = [&](QDate day) {
      chosen = day;
      menu.close();
    };
    connect(calendar, &QCalendarWidget::clicked, &menu, choose);
    connect(calendar, &QCalendarWidget::activated, &menu, choose);
    calendar->setFocus();
    menu.exec(Line().mapToGlobal(QPoint(0, Line().height())));
    if (chosen.isValid())
      host_.Act([&] { picker_.SetValue({chosen.year(), chosen.month(), chosen.day()}); });
  }

  DatePicker& picker_;
  Date before_;
  QToolButton* button_;
};

}  // namespace

std::unique_ptr<ControlView> MakeDateView(DatePicker& picker, FormHost& host) {
  return std::make_unique<DateView>(picker, host);
}

}  // namespace orm
