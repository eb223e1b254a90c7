#include "shell/menu_tree.h"

#include "cases/fee_case.h"

namespace orm {
namespace {

MenuItem Separator() { return {"", ""}; }

std::string InCurrency(std::string caption, bool lire) {
  static const std::string kLira = "£";
  if (!lire)
    if (const auto at = caption.find(kLira); at != std::string::npos)
      caption.replace(at, kLira.size(), "€");
  return caption;
}

// One entry of a case: its two commands.
MenuItem CaseEntry(const FeeCase& fee, const std::string& caption, bool lire) {
  const std::string stem = std::string(fee.stem) + (lire ? "" : "_E");
  return {stem, caption, {{stem + "_ID", "Input Dati"}, {stem + "_VS", "Calcolo"}}};
}

std::vector<MenuItem> CaseEntries(bool lire) {
  std::vector<MenuItem> entries;
  for (const FeeCase& fee : FeeCases()) {
    if (fee.stem == nullptr || (lire && !fee.inLireMenu)) continue;
    const std::string caption =
        !lire && fee.euroCaption != nullptr ? fee.euroCaption : InCurrency(fee.caption, lire);
    if (fee.version == nullptr) {
      entries.push_back(CaseEntry(fee, caption, lire));
      continue;
    }
    if (entries.empty() || entries.back().caption != caption)
      entries.push_back({std::string(fee.stem) + "_VERSIONI" + (lire ? "" : "_E"), caption});
    entries.back().children.push_back(CaseEntry(fee, fee.version, lire));
  }
  return entries;
}

MenuItem Configuration() {
  return {"CONF",
          "CONFIGURAZIONE",
          {{"CONF_EDITOR", "SCELTA DEGLI EDITOR"},
           Separator(),
           {"CONF_NOTA", "Nota sui File di Configurazione"},
           {"CONF_FILE",
            "I FILE di CONFIGURAZIONE",
            {{"CONFIG_COMPACCES", "Compensi Accessori"},
             {"CONFIG_TUS", "Tasso Ufficiale di Sconto"},
             {"CONFIG_CS1", "Collaudo Statico con tabelle Revisione Calcoli ante D.M 4-4-01"},
             {"CONFIG_CS2", "Collaudo Statico con tabelle Revisione Calcoli D.M. 4-4-01"},
             {"CONFIG_INC", "Ingegnere Capo "},
             {"CONFIG_GEO", "Prestazioni Geotecniche"}}}}};
}

MenuItem Personalisation() {
  return {"PERS",
          "PERSONALIZZAZIONE",
          {{"PERS_UTENTE", "DATI DEL PROFESSIONISTA"},
           Separator(),
           {"PERS_CRITERI", "CRITERI DI CALCOLO"},
           Separator(),
           {"PERS_EDITMEMO", "Edita MEMO"}}};
}

MenuItem Utilities() {
  return {kMenuUtilita,
          "UTILITA'",
          {{"UTIL_CALCOLATRICE", "CALCOLATRICE - CONVERTITORE "},
           Separator(),
           {"UTIL_LETTERA",
            "LETTERA TRASMISSIONE ORDINE",
            {{"UTIL_LETTERA_ID", "Introduzione Dati "},
             {"UTIL_LETTERA_VS", "Visualizzazione e Stampa "}}},
           Separator(),
           {"UTIL_PERC_COMBO", "PERCENTUALI a video "},
           Separator(),
           {"UTIL_OV", "ONORARI a video", {{"UTIL_OV_CL_COMBO", "Contabilità Lavori "}}},
           Separator(),
           Separator(),
           {"UTIL_MORA", "INTERESSI DI MORA"},
           Separator(),
           {"UTIL_CONVERTI", "CONVERSIONE FILE DATI da LIRE a EURO"}}};
}

MenuItem Gadgets() {
  return {"GADGETS",
          "GADGET",
          {{"VERIFICHE_SEZIONI",
            "VERIFICHE SEZIONI in c.a.",
            {{"VER_ST1", "a FLESSIONE sez. Rett., a T e doppia T(armatura pluristrato)"},
             {"ver_SC1", "a FLESSIONE sez CIRC. e ANULARI"}}},
           {"ELEMENTIPIETRA", "STRUTTURE in PIETRA", {{"VER_BALCONE", "BALCONE in PIETRA"}}},
           {"SOLAI",
            "SOLAI",
            {{"VER_SOLAIO_T", "A TRALICCIO (MONOCAMPATA)"},
             {"VER_SOLAIO_P", "A PUTRELLE E TAVELLONI"},
             {"VER_SBALZI_P", "sbalzi A PUTRELLE E TAVELLONI"}}}}};
}

MenuItem Help() {
  return {"INFORMA",
          "AIUTO",
          {{"INFORMA_Avvertenze", "NOTE OPERATIVE"},
           {"INFORMA_Note", "MEMO"},
           {"INFORMA_Norme", "NORME TARIFFARIE"},
           {"Informa_INAR", "NORME INARCASSA"},
           Separator(),
           {"INFORMA_MANUALE", "MANUALE ORM2002"},
           Separator(),
           {"INFORMA_GADGETS",
            "NOTE TECNICHE SUI GADGETS",
            {{"INFORMA_BALCONI", "BALCONI IN PIETRA"}, {"INFORMA_SOLAIT", "SOLAI A TRALICCIO"}}},
           Separator(),
           {"Informa_Informazioni", "INFORMAZIONI su ORM2002"}}};
}

}  // namespace

std::vector<MenuItem> BuildMenu() {
  return {{"FILE", "FILE", {{"File_Esci", "ESCI"}}},
          Configuration(),
          Personalisation(),
          Utilities(),
          {kMenuLire, "PARCELLE ( £ )", CaseEntries(true)},
          {kMenuEuro, "PARCELLE ( € )", CaseEntries(false)},
          {"INARCASSA", "INARCASSA", {{"INAR_PENSIONE_INARCASSA", "PENSIONE INARCASSA"}}},
          Gadgets(),
          Help()};
}

}  // namespace orm
