// The line above a form that tells where one is.
#pragma once

#include <QWidget>

#include "dialogs/form.h"

namespace orm {

class HeadingLine : public QWidget {
 public:
  HeadingLine(const Heading& heading, QWidget* parent);
  // What stands on the line, and what stands on it while there is less room than it needs: the
  // subject is cut in its middle then, and a tooltip has it whole.
  QString Whole() const { return Line(subject_); }
  QString Shown() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QString Before(const QString& subject) const;
  QString Line(const QString& subject) const { return Before(subject) + way_; }
  QString SubjectWithin(int room) const;
  int Width(const QString& subject) const;
  QFont WayFont() const;

  QString note_, subject_, way_;
};

}  // namespace orm
