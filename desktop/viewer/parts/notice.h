// A bar above the page that asks without standing in the way.
#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>

class QHBoxLayout;
class QLabel;

namespace orm {

class NoticeBar : public QWidget {
 public:
  explicit NoticeBar(QWidget* parent = nullptr);

  // Shows the text with a button for each caption; `pressed` gets the index of the one pressed,
  // and the bar goes. A new question takes the place of an older one.
  void Ask(const QString& text, const QStringList& captions,
           const std::function<void(int)>& pressed);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* text_;
  QHBoxLayout* row_;
};

}  // namespace orm
