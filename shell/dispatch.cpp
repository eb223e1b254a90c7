#include "shell/dispatch.h"

#include <optional>

#include "cases/calculation_step.h"
#include "cases/fee_case.h"
#include "dialogs/message_boxes.h"
#include "shell/personal/form_criteria.h"
#include "shell/shell_boxes.h"
#include "tariff/files/case_files.h"
#include "tariff/files/user_files.h"
#include "tariff/parcella.h"

namespace orm {
namespace {

// The chain of forms of a note, whose headings tell it.
Place PlaceOf(const RunState& stato) {
  return {stato.CasoDiParcella + kHeadingMark + (stato.ModoLire ? "Lire" : "Euro"), "", {}};
}

std::string SetFileNames(RunState& stato) {
  const NomiFile nomi = NomiDiCaso(stato.CasoDiParcella, stato.ModoLire);
  stato.FileInt = nomi.FileInt;
  stato.FileInp = nomi.FileInp;
  return nomi.Report;
}

// The message of the first file that a calculation lacks, if any.
std::optional<MessageBox> MissingFile(const RunState& stato) {
  if (!stato.folder.Exists(kFileUtente)) return AvvisoFileUtenteAssente();
  if (!stato.folder.Exists(stato.FileInt)) return AvvisoFileIntestazioneAssente();
  if (!stato.folder.Exists(stato.FileInp)) return AvvisoFileDatiAssente();
  return std::nullopt;
}

}  // namespace

void InputDatiParcella(RunState& stato) {
  SetFileNames(stato);
  const Drafts::Subject nota(stato.player.DraftsOfRun(), stato.FileInp);
  const FeeCase* fee = FindFeeCase(stato.CasoDiParcella);
  if (fee == nullptr || fee->input == nullptr) return;
  const PartOfWay chain(stato.player.place, {});
  stato.player.place = PlaceOf(stato);
  fee->input(stato);
}

bool CalcoloParcella(RunState& stato, Spiegazioni* spiegazioni) {
  const std::string report = SetFileNames(stato);
  const FeeCase* fee = FindFeeCase(stato.CasoDiParcella);
  if (fee == nullptr) return false;
  if (const auto missing = MissingFile(stato)) {
    stato.player.Ask(*missing);
    return false;
  }
  {
    const PartOfWay chain(stato.player.place, {});
    stato.player.place = PlaceOf(stato);
    FrmPerCriteri criteri(stato);
    stato.player.Show(criteri);
  }
  stato.memoria.The<SpiegazioniChieste>().si = spiegazioni != nullptr;
  const Parcella nota = fee->calcolo(stato);
  nota.uscita.Save(stato.folder, report);
  if (spiegazioni != nullptr) *spiegazioni = nota.spiegazioni;
  stato.player.StartProgram(stato.editors.EditorTesti, report);
  return true;
}

}  // namespace orm
