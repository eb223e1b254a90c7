// The captions of Qt's own dialogs and menus in Italian, whatever language packages are installed.
#pragma once

#include <QTranslator>

namespace orm {

class ItalianCaptions : public QTranslator {
 public:
  using QTranslator::QTranslator;
  QString translate(const char* context, const char* source, const char* disambiguation,
                    int number) const override;
  bool isEmpty() const override { return false; }
};

}  // namespace orm
