// The captions of Qt's own dialogs and menus in Italian, whatever language packages are installed:
// Qt's translation is within the program.
#pragma once

#include <QTranslator>

namespace orm {

class ItalianCaptions : public QTranslator {
 public:
  explicit ItalianCaptions(QObject* parent = nullptr);
  QString translate(const char* context, const char* source, const char* disambiguation,
                    int number) const override;
};

}  // namespace orm
