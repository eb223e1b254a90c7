// What the program remembers of its user: criteria and outside programs.
#pragma once

#include "runtime/data_file.h"
#include "shell/state/run_state.h"

namespace orm {

// CRITERI.PER, four lines.
template <class Archive>
void Campi(Archive& file, Criteri& c) {
  file.Line(Field("TipoPercentualeCompensi", c.TipoPercentualeCompensi),
            Field("AliquoteDirezioneLavori", c.AliquoteDirezioneLavori),
            Field("ResidenzaCollaudatore", c.ResidenzaCollaudatore),
            Field("PercCompensiAssegnata", c.PercCompensiAssegnata));
  file.Line(Field("DecimaliTabelle", c.DecimaliTabelle),
            Field("DecimaliCompensi", c.DecimaliCompensi),
            Field("CompensiSuSorveglianza", c.CompensiSuSorveglianza),
            Field("CompensiSuMaggiorazione", c.CompensiSuMaggiorazione));
  file.Line(Field("StampaParere", c.StampaParere), Field("QuotaFissaParere", c.QuotaFissaParere),
            Field("QuotaPercentualeParere", c.QuotaPercentualeParere),
            Field("PresidenteOrdine", c.PresidenteOrdine));
  file.Line(Field("StampaSpeseAggiuntive", c.StampaSpeseAggiuntive),
            Field("SpesaInarcassa", c.SpesaInarcassa), Field("SpesaInps", c.SpesaInps),
            Field("SpesaIva", c.SpesaIva), Field("SpesaTassaParere", c.SpesaTassaParere),
            Field("PercInarcassa", c.PercInarcassa), Field("PercInps", c.PercInps),
            Field("PercIva", c.PercIva));
}

// EDITOR.PER, one line.
template <class Archive>
void Campi(Archive& file, Editors& e) {
  file.Line(Field("EditorTesti", e.EditorTesti),
            Field("EditorConfigurazione", e.EditorConfigurazione),
            Field("LettorePdf", e.LettorePdf));
}

inline constexpr const char* kFileCriteri = "CRITERI.PER";
inline constexpr const char* kFileEditor = "EDITOR.PER";

// The file's values, or the defaults where there is no file. A damaged file is a RuntimeFailure and
// leaves the values of the run state as they were.
void LeggiEditor(RunState& stato);
void LeggiCriteri(RunState& stato);
void ScriviEditor(const WorkFolder& folder, const Editors& editors);
void ScriviCriteri(const WorkFolder& folder, const Criteri& criteri);

}  // namespace orm
