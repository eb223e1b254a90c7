#include "desktop/viewer/unsaved.h"

#include <QTextDocument>

#include "desktop/viewer/messages.h"
#include "desktop/viewer/parts/page.h"

namespace orm {

void UnsavedText::Follow(const FilePlace& place) {
  draft_ = std::make_unique<DraftFile>(place.folder, place.name);
}

bool UnsavedText::ComesBack(QWidget* window) {
  bool tooLarge = false;
  const auto left = draft_->TakeOver([&tooLarge](std::string_view text) {
    const bool fits = CanBeShown(text);
    tooLarge = tooLarge || !fits;
    return fits;
  });
  if (tooLarge)
    Tell(window, QMessageBox::Warning,
         QStringLiteral("Di questo file c'è un testo non salvato troppo grande per riprenderlo."),
         QStringLiteral("Resta dov'è, in un file nascosto che finisce in \".bozza\"."));
  if (!left) return false;
  const bool wanted =
      *left != page_.Text() &&
      Choose(
          window, QStringLiteral("Di questo file c'è un testo che non è stato salvato."),
          QStringLiteral("Il visore è stato interrotto mentre si scriveva."),
          {QStringLiteral("&Elimina il testo non salvato"), QStringLiteral("&Riprendi il testo")},
          1) == 1;
  if (!wanted) {
    draft_->Forget();
    return false;
  }
  QTextCursor all(page_.document());
  all.select(QTextCursor::Document);
  all.insertText(QString::fromStdString(*left));
  page_.moveCursor(QTextCursor::Start);
  return true;
}

void UnsavedText::Keep() {
  if (draft_ == nullptr) return;
  if (page_.document()->isModified())
    draft_->Keep(page_.Text());
  else
    draft_->Forget();
}

void UnsavedText::Forget() {
  if (draft_ != nullptr) draft_->Forget();
}

}  // namespace orm
