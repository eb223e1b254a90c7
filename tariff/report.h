// The frame of a report: its section rules and its columns, which count from 1.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

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

// The line of the net amount begins with this, and in Lire the next one with the same in Euro.
inline constexpr std::string_view kVoceNetto = "COMPETENZE S.E.&.O. (oltre Contr.INARCASSA e IVA )";
inline constexpr std::string_view kVoceNettoInEuro = "ed in EURO";

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

// Where the amount of a fee line begins, and an amount of works.
inline constexpr int kColonnaImporto = 56;
inline constexpr int kColonnaLavori = 48;

enum class TipoImporto : std::uint8_t { Lavori, Onorari };

// An amount that a report has in its column.
struct ImportoStampato {
  // Where its field begins, with the symbol if it has one: bytes of the report.
  std::uint32_t campo = 0;
  TipoImporto tipo = TipoImporto::Onorari;
  bool inEuro = false;
};

// "3 - ..." or "  3 - ...", the heading of a lot or of a fee; "=== ... ===", that of a section.
bool IsTitolo(std::string_view riga);

}  // namespace orm
