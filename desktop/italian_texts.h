// The few texts that the widgets bring along, in Italian whatever the system speaks.
#pragma once

#include <QTranslator>

namespace orm {

class ItalianTexts : public QTranslator {
 public:
  using QTranslator::QTranslator;
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* comment,
                    int n) const override;
};

}  // namespace orm
