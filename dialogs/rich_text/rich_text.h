// A control that shows, and lets a person write, a text with looks.
#pragma once

#include "dialogs/control.h"
#include "dialogs/rich_text/rich_document.h"

namespace orm {

class RichTextBox : public Control {
 public:
  RichTextBox(Form& form, std::string name, std::string caption = {});

  const RichDocument& Document() const { return document_; }
  // By the logic.
  void SetDocument(RichDocument document);
  // By a person: the document as edited on the screen. Marks the text as changed.
  void Edit(RichDocument document);
  // True when a person has changed the text since the logic set it.
  bool Edited() const { return edited_; }

  bool ReadOnly() const { return readOnly_; }
  void SetReadOnly(bool readOnly);

  bool TakesFocus() const override { return true; }  // a read-only one too: to move through it
  std::string ShownText() const override { return PlainText(document_); }
  // Replaces the whole text, in the looks of its beginning.
  std::string Enter(std::string_view text) override;

 private:
  RichDocument document_;
  bool edited_ = false;
  bool readOnly_ = false;
};

}  // namespace orm
