// The frame of a report: section rules, heading, and the line with a label and an amount.
// Everything is printed on `stato.NumFileUscita`; columns count from 1.
#pragma once

#include <string>
#include <string_view>

#include "runtime/text.h"
#include "shell/state/run_state.h"

namespace orm {

// Section rules, all as wide as the page.
inline constexpr std::size_t kLarghezzaParcella = 72;

inline constexpr std::string_view kRigaDatiParcella =
    "======================= SPECIFICA DATI PARCELLA ========================";
inline constexpr std::string_view kRigaImporti =
    "======================= SPECIFICA DEGLI IMPORTI ========================";
inline constexpr std::string_view kRigaOnorariCompensi =
    "========================== ONORARI E COMPENSI ==========================";
inline constexpr std::string_view kRigaInCorsoDOpera =
    "============  ONORARI E COMPENSI : PARCELLA IN CORSO D'OPERA ===========";
inline constexpr std::string_view kRigaAConsuntivo =
    "============  ONORARI E COMPENSI : PARCELLA A CONSUNTIVO     ===========";
inline constexpr std::string_view kRigaCompensiAccessori =
    "=============== COMPENSI ACCESSORI CONGLOBATI (art. 13) ================";
inline constexpr std::string_view kRigaRiepilogo =
    "============================== RIEPILOGO ===============================";
inline constexpr std::string_view kRigaTotali =
    "================================ TOTALI ================================";
inline constexpr std::string_view kRigaAggiornamentoPrezzi =
    "================= METODOLOGIA DELL'AGGIORNAMENTO PREZZI ================";
inline constexpr std::string_view kRigaBaseGennaio1993 =
    "=============== SPECIFICA ONORARIO A BASE GENNAIO 1993 =================";
inline constexpr std::string_view kRigaRivalutazione =
    "================= RIVALUTAZIONE MONETARIA ONORARIO =====================";

static_assert(kRigaDatiParcella.size() == kLarghezzaParcella);
static_assert(kRigaImporti.size() == kLarghezzaParcella);
static_assert(kRigaOnorariCompensi.size() == kLarghezzaParcella);
static_assert(kRigaInCorsoDOpera.size() == kLarghezzaParcella);
static_assert(kRigaAConsuntivo.size() == kLarghezzaParcella);
static_assert(kRigaCompensiAccessori.size() == kLarghezzaParcella);
static_assert(kRigaRiepilogo.size() == kLarghezzaParcella);
static_assert(kRigaTotali.size() == kLarghezzaParcella);
static_assert(kRigaAggiornamentoPrezzi.size() == kLarghezzaParcella);
static_assert(kRigaBaseGennaio1993.size() == kLarghezzaParcella);
static_assert(kRigaRivalutazione.size() == kLarghezzaParcella);

// Where the amount of a fee line begins.
inline constexpr int kColonnaImporto = 56;

enum class TipoImporto { Lavori, Onorari };

// Currency symbol and, right-justified behind it, a text of figures: a field of 16 characters for
// amounts of works, of 14 for fees. "L. " is two characters longer than "€", so a Euro line ends
// two columns before a line in Lire. A text too long for the field is a RuntimeFailure.
std::string StringaImporto(std::string_view testo, TipoImporto tipo, bool modoLire);

// One line: the label from column `tab`, the amount from column 56. `valore` is cut to what is
// printed. A label of 54 characters or more loses its inner blanks, and keeps the loss; if it is
// too long even so, the amount follows it after one blank.
void StampaRigaOnorario(RunState& stato, int tab, std::string& etichetta, double& valore);
void StampaRigaOnorario(RunState& stato, int tab, std::string&& etichetta, double& valore);

// One line with a formula and what it comes to: the amount from column 56, or after one blank where
// the formula has 44 characters or more. `valore` is cut to what is printed.
void StampaFormula(RunState& stato, std::string_view formula, double& valore);

// One line with the text before `colonna`, or with its comma at `colonna`.
void StampaAllineataVirgola(RunState& stato, std::string_view testo, int colonna);

// The heading of a fee note: title, client, professional, `frase` that names the work, and the
// texts of the header file `fileIntestazione`. Reads UTENTE.DAG too.
void ApriParcella(RunState& stato, const std::string& fileIntestazione, std::string_view frase);

}  // namespace orm
