// The notice bar.
#include "desktop/viewer/parts/notice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace orm {

NoticeBar::NoticeBar(QWidget* parent)
    : QWidget(parent), text_(new QLabel(this)), row_(new QHBoxLayout(this)) {
  setObjectName(QStringLiteral("noticeBar"));
  text_->setObjectName(QStringLiteral("noticeText"));
  text_->setWordWrap(true);
  row_->setContentsMargins(12, 8, 12, 8);
  row_->addWidget(text_, 1);
  hide();
}

void NoticeBar::Ask(const QString& text, const QStringList& captions,
                    const std::function<void(int)>& pressed) {
  qDeleteAll(findChildren<QPushButton*>());
  text_->setText(text);
  for (int i = 0; i < captions.size(); ++i) {
    auto* button = new QPushButton(captions[i], this);
    row_->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, pressed, i] {
      hide();
      pressed(i);
    });
  }
  show();
}

void NoticeBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  painter.fillRect(rect(), dark ? QColor(74, 62, 24) : QColor(255, 244, 206));
  painter.setPen(dark ? QColor(120, 100, 40) : QColor(222, 200, 130));
  painter.drawLine(0, height() - 1, width(), height() - 1);
}

}  // namespace orm
