#include "cases/fee_case.h"

#include <algorithm>

#include "cases/agp/agp.h"
#include "cases/agp/data.h"
#include "cases/calculation_step.h"
#include "cases/coa/coa.h"
#include "cases/coa/data.h"
#include "cases/cos/config.h"
#include "cases/cos/cos.h"
#include "cases/cos/data.h"
#include "cases/esl/data.h"
#include "cases/esl/esl.h"
#include "cases/geo/config.h"
#include "cases/geo/data.h"
#include "cases/geo/geo.h"
#include "cases/inc/config.h"
#include "cases/inc/data.h"
#include "cases/inc/inc.h"
#include "cases/pdl/data.h"
#include "cases/pdl/pdl.h"
#include "cases/pes/data.h"
#include "cases/pes/pes.h"
#include "cases/ppe/data.h"
#include "cases/ppe/ppe.h"
#include "cases/rim/data.h"
#include "cases/rim/rim.h"
#include "cases/rpa/data.h"
#include "cases/rpa/rpa.h"
#include "cases/sic/data.h"
#include "cases/sic/sic.h"
#include "cases/stc/data.h"
#include "cases/stc/stc.h"
#include "cases/sup/data.h"
#include "cases/sup/sup.h"
#include "runtime/text.h"
#include "tariff/config/price_index.h"
#include "tariff/files/case_files.h"
#include "tariff/files/conversion.h"

namespace orm {

namespace {

constexpr auto kCompensiETabelle = static_cast<CriteriaGroups>(kCompensiAccessori | kTabelle);
constexpr auto kTabelleCompensiVoci =
    static_cast<CriteriaGroups>(kCompensiETabelle | kCompensiSuVoci);

}  // namespace

const std::vector<FeeCase>& FeeCases() {
  // clang-format off
  static const std::vector<FeeCase> kCases = {
      {"AGP", " 1 - AGGIORNAMENTO PREZZI ( £ )", nullptr, nullptr, "PARCELLE_AGP", true, true, kTabelleCompensiVoci, InputAgp, CalcolaDaFile<CalcoloAgp>, ConvertiParcella<DatiAgp>, kCampiNota<DatiAgp>},
      {"COA", " 2 - COLLAUDO AMMINISTRATIVO ( £ )", nullptr, nullptr, "PARCELLE_COA", true, true, kCompensiETabelle, InputCoa, CalcolaDaFile<CalcoloCoa>, ConvertiParcella<DatiCoa>, kCampiNota<DatiCoa>},
      {"CS1", " 3 - COLLAUDO STATICO ( £ )", "    1  Versione con Tabelle ante D.M. 4-4-01", nullptr, "PARCELLE_CS1", true, true, kCompensiETabelle, InputCos, CalcolaDaFile<CalcoloCos>, ConvertiParcella<DatiCos>, kCampiNota<DatiCos>},
      // "CS2" is calculated like "CS1" but stands in no menu, and has no input of its own.
      {"CS2", nullptr, nullptr, nullptr, nullptr, false, false, kCompensiETabelle, nullptr, CalcolaDaFile<CalcoloCos>, ConvertiParcella<DatiCos>, kCampiNota<DatiCos>},
      {"INC", " 4 - INGEGNERE CAPO ( £)", nullptr, nullptr, "PARCELLE_INC", true, true, kCompensiETabelle, InputInc, CalcolaDaFile<CalcoloInc>, ConvertiParcella<DatiInc>, kCampiNota<DatiInc>},
      {"PDL", " 5 - PROGETTAZIONE e DIREZIONE LAVORI ( £ )", "    1  LL.PP. ante D.M. 4-4-01 e Lavori Privati", nullptr, "PARCELLE_PDL", true, true, kAllCriteria, InputPdl, CalcolaDaFile<CalcoloPdl>, ConvertiParcella<DatiPdl>, kCampiNota<DatiPdl>},
      {"ESL", " 5 - PROGETTAZIONE e DIREZIONE LAVORI ( £ )", "    2  LL.PP.  D.M. 4-4-01", nullptr, "PARCELLE_ESL", true, true, kCompensiETabelle, InputEsl, CalcolaDaFile<CalcoloEsl>, ConvertiParcella<DatiEsl>, kCampiNota<DatiEsl>},
      {"GEO", " 6 - PRESTAZIONI GEOTECNICHE ( £ )", nullptr, nullptr, "PARCELLE_GEO", true, true, kAllCriteria, DatiGEO, CalcolaDaFile<CalcoloGEO>, ConvertiParcella<DatiGeotecnici>, kCampiNota<DatiGeotecnici>},
      {"SC1", " 7 - SICUREZZA CANTIERI ( £ )", "    1  Versione secondo C.N.I. e C.N.A.", nullptr, "PARCELLE_SC1", true, true, kCompensiETabelle, DatiSIC, CalcolaDaFile<CalcoloSIC>, ConvertiParcella<DatiSicurezza>, kCampiNota<DatiSicurezza>},
      {"SC2", " 7 - SICUREZZA CANTIERI ( £ )", "    2  Versione secondo D.M. 4-4-01", nullptr, "PARCELLE_SC2", true, false, kCompensiETabelle, DatiSIC, CalcolaDaFile<CalcoloSIC>, ConvertiParcella<DatiSicurezza>, kCampiNota<DatiSicurezza>},
      {"PES", " 8 - PERIZIE ESTIMATIVE ( £ )", nullptr, nullptr, "PARCELLE_PES", true, true, kCompensiETabelle, InputPes, CalcolaDaFile<CalcoloPes>, ConvertiParcella<DatiPes>, kCampiNota<DatiPes>},
      {"PPE", " 9 - PIANI PARTICELLARI DI ESPROPRIO ( £ )", nullptr, nullptr, "PARCELLE_PPE", true, true, kNoCriteria, InputPpe, CalcolaDaFile<CalcoloPpe>, ConvertiParcella<DatiPpe>, kCampiNota<DatiPpe>},
      {"STC", "10 - STATI DI CONSISTENZA ( £ )", nullptr, nullptr, "PARCELLE_STC", true, true, kNoCriteria, InputStc, CalcolaDaFile<CalcoloStc>, ConvertiParcella<DatiStc>, kCampiNota<DatiStc>},
      {"RIM", "11 - RILIEVI MANUFATTI ( £ )", nullptr, nullptr, "PARCELLE_RIM", true, true, kNoCriteria, InputRim, CalcolaDaFile<CalcoloRim>, ConvertiParcella<DatiRim>, kCampiNota<DatiRim>},
      {"RPA", "12 - RILIEVI PLANO ALTIMETRICI ( £ )", nullptr, "12 -RILIEVI PLANO ALTIMETRICI ( € )", "PARCELLE_RPA", true, true, kNoCriteria, InputRpa, CalcolaDaFile<CalcoloRpa>, ConvertiParcella<DatiRpa>, kCampiNota<DatiRpa>},
      {"SUP", "13 - SUPPORTO RESPONSABILE PROCEDIMENTO ( £ )", nullptr, nullptr, "PARCELLE_SUP", false, true, kCompensiETabelle, InputSup, CalcolaDaFile<CalcoloSup>, nullptr, kCampiNota<DatiSup>},
  };
  // clang-format on
  return kCases;
}

const FeeCase* FindFeeCase(std::string_view code) {
  const auto& cases = FeeCases();
  const auto found =
      std::find_if(cases.begin(), cases.end(), [&](const FeeCase& c) { return code == c.code; });
  return found == cases.end() ? nullptr : &*found;
}

std::optional<NotaDiCaso> NotaDelReport(std::string_view nome) {
  for (const FeeCase& fee : FeeCases())
    for (const bool lire : {true, false})
      if (Capitals(NomiDiCaso(fee.code, lire).Report) == Capitals(nome))
        return NotaDiCaso{fee.code, lire};
  return std::nullopt;
}

}  // namespace orm
