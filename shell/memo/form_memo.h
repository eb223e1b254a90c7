// The memo: a window that shows and saves a rich text file.
#pragma once

#include <string>
#include <vector>

#include "dialogs/form.h"
#include "dialogs/rich_text/rich_text.h"
#include "shell/state/run_state.h"

namespace orm {

inline constexpr const char* kFileMemo = "MEMO.RTF";

void MostraMemo(RunState& stato);
// Opens the memo in the word processor.
void EditaMemo(RunState& stato);

class FrmGenVisualizzaRtf : public Form {
 public:
  explicit FrmGenVisualizzaRtf(RunState& stato);

  std::string NomeFile;  // the file to show

  RichTextBox RichTextBox1{*this, "RichTextBox1"};

  // Reads the file. Damage is told, and the window opens blank: a save then keeps the old file
  // under another name.
  void OnOpen() override;
  // Saves what the person has written; the window stays when that fails. An untouched text is not
  // written again.
  void OnWindowClose() override;
  // The text, for a draft.
  std::vector<std::string> Hidden() const override;
  void SetHidden(const std::vector<std::string>& testo) override;

 private:
  // What of the file on disk would go with a save, in Italian.
  std::vector<std::string> Rischi() const;
  Answer ChiediSeSalvare(const std::vector<std::string>& rischi) const;
  void Salva(bool conservaIlPrecedente);

  RunState& stato_;
  std::string letto_;  // the file as it was read
  std::vector<std::string> perdite_;
  bool nuovo_ = false;    // there was no file
  bool fallito_ = false;  // the last save; whoever wants to leave all the same is asked
};

}  // namespace orm
