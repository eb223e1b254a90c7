#include "shell/commands.h"

#include <algorithm>
#include <array>

#include "cases/cos/config.h"
#include "cases/fee_case.h"
#include "cases/geo/config.h"
#include "cases/inc/config.h"
#include "shell/dispatch.h"
#include "shell/form_conversion.h"
#include "shell/form_title.h"
#include "shell/help/help.h"
#include "shell/help/technical_notes.h"
#include "shell/letter/form_letter.h"
#include "shell/letter/letter.h"
#include "shell/memo/form_memo.h"
#include "shell/personal/form_criteria.h"
#include "shell/personal/form_editor.h"
#include "shell/personal/form_user.h"
#include "shell/shell_boxes.h"
#include "structures/balcony/form_balcony.h"
#include "structures/sections/form_bending_circular.h"
#include "structures/sections/form_bending_t.h"
#include "structures/steel_beams/form_cantilever.h"
#include "structures/steel_beams/form_slab.h"
#include "structures/truss_slab/form_truss_slab.h"
#include "tariff/config/compensation_steps.h"
#include "utilities/form_accounting_fee.h"
#include "utilities/form_calculator.h"
#include "utilities/form_interest.h"
#include "utilities/form_pension.h"
#include "utilities/form_percentages.h"

namespace orm {
namespace {

struct Command {
  std::string_view name;
  void (*run)(RunState&);
};

template <class ShownForm>
void Show(RunState& stato) {
  ShownForm form(stato);
  stato.player.Show(form);
}

template <const char* const& File>
void EditConfiguration(RunState& stato) {
  stato.player.StartProgram(stato.editors.EditorConfigurazione, File);
}

void ShowCriteria(RunState& stato) {
  stato.CasoDiParcella.clear();
  Show<FrmPerCriteri>(stato);
}

void ShowInformation(RunState& stato) {
  FrmGenInforma form;
  stato.player.Show(form);
}

constexpr std::array kCommands = {
    Command{"CONF_EDITOR", Show<FrmPerEditor>},
    Command{"CONF_NOTA", [](RunState& stato) { stato.player.Ask(AvvisoNotaConfigurazione()); }},
    Command{"CONFIG_COMPACCES", EditConfiguration<kFileCompensi>},
    Command{"CONFIG_TUS", EditConfiguration<kFileTus>},
    Command{"CONFIG_CS1", EditConfiguration<kFileCs1>},
    Command{"CONFIG_CS2", EditConfiguration<kFileCs2>},
    Command{"CONFIG_INC", EditConfiguration<kFileInc>},
    Command{"CONFIG_GEO", EditConfiguration<kFileGeo>},
    Command{"PERS_UTENTE", Show<FrmPerUtente>},
    Command{"PERS_CRITERI", ShowCriteria},
    Command{"PERS_EDITMEMO", EditaMemo},
    Command{"UTIL_LETTERA_ID", Show<FrmGenLettera>},
    Command{"UTIL_LETTERA_VS", VisualizzaLettera},
    Command{"UTIL_CONVERTI", Show<FrmGenConversione>},
    Command{"UTIL_MORA", MostraInteressiMora},
    Command{"UTIL_PERC_COMBO", Show<FrmUtiPercentuali>},
    Command{"UTIL_OV_CL_COMBO", Show<FrmUtiContabilita>},
    Command{"UTIL_CALCOLATRICE", Show<FrmUtiCalcolatrice>},
    Command{"INAR_PENSIONE_INARCASSA", Show<FrmInaInPensione>},
    Command{"INFORMA_Avvertenze", MostraAvvertenze},
    Command{"INFORMA_Note", MostraMemo},
    Command{"INFORMA_Norme", MostraNorme},
    Command{"Informa_INAR", MostraNormeInarcassa},
    Command{"INFORMA_MANUALE", MostraManuale},
    Command{"INFORMA_BALCONI", MostraNotaBalconi},
    Command{"INFORMA_SOLAIT", MostraNotaSolai},
    Command{"VER_ST1", MostraVerFlessT1},
    Command{"ver_SC1", MostraVerFlessC1},
    Command{"VER_SOLAIO_T", MostraSolaioTraliccio},
    Command{"VER_SOLAIO_P", MostraSolaioP},
    Command{"VER_SBALZI_P", MostraSbalziP},
    Command{"VER_BALCONE", MostraVerBalcone},
    Command{"Informa_Informazioni", ShowInformation},
};

const Command* FindCommand(std::string_view name) {
  const auto found = std::find_if(kCommands.begin(), kCommands.end(),
                                  [&](const Command& command) { return command.name == name; });
  return found == kCommands.end() ? nullptr : found;
}

// A command of a fee case: the case, and which of its two steps.
struct CaseCommand {
  const FeeCase* fee = nullptr;
  bool isInput = false;
  bool isEuro = false;
  bool Acts() const { return !isEuro || fee->actsInEuroMenu; }
};

CaseCommand FindCaseCommand(std::string_view name) {
  for (const FeeCase& fee : FeeCases()) {
    if (fee.stem == nullptr || !name.starts_with(fee.stem)) continue;
    const std::string_view ending = name.substr(std::string_view(fee.stem).size());
    for (const bool euro : {false, true})
      for (const bool input : {true, false})
        if (ending == std::string(euro ? "_E" : "") + (input ? "_ID" : "_VS"))
          return {&fee, input, euro};
  }
  return {};
}

}  // namespace

void RunCommand(RunState& stato, std::string_view name) {
  if (const Command* command = FindCommand(name)) return command->run(stato);
  const CaseCommand command = FindCaseCommand(name);
  if (command.fee == nullptr || !command.Acts()) return;
  stato.CasoDiParcella = command.fee->code;
  if (command.isInput)
    InputDatiParcella(stato);
  else
    CalcoloParcella(stato);
}

std::string CalculationOf(std::string_view inputName) {
  const std::string_view stem = inputName.substr(0, inputName.rfind('_'));
  return std::string(stem) + "_VS";
}

bool IsCommand(std::string_view name) {
  return name == "File_Esci" || FindCommand(name) != nullptr ||
         FindCaseCommand(name).fee != nullptr;
}

}  // namespace orm
