// The memo: a window that shows and saves a rich text file.
#pragma once

#include <string>
#include <vector>

#include "dialogs/form.h"
#include "dialogs/rich_text.h"
#include "shell/run_state.h"

namespace orm {

inline constexpr const char* kFileMemo = "MEMO.RTF";

void MostraMemo(RunState& run);
// Opens the memo in the word processor.
void EditaMemo(RunState& run);

class FrmGenVisualizzaRtf : public Form {
 public:
  explicit FrmGenVisualizzaRtf(RunState& run);

  std::string NomeFile;  // the file to show

  RichTextBox RichTextBox1{*this, "RichTextBox1"};

  // Reads the file. A damaged one is a RuntimeFailure, and stays as it is.
  void OnOpen() override;
  // Saves what the person has written. An untouched text is not written again.
  void OnWindowClose() override;

 private:
  // What of the file on disk would go with a save, in Italian.
  std::vector<std::string> Rischi() const;
  std::string NomeDelPrecedente() const;
  void Salva();

  RunState& run_;
  std::string letto_;  // the file as it was read
  std::vector<std::string> perdite_;
};

}  // namespace orm
