// The run state: what a command leaves for the rules that it calls. Everybody gets it as an
// argument, nobody keeps it in globals.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "dialogs/player.h"
#include "runtime/folder.h"
#include "runtime/report_printer.h"
#include "runtime/run_memory.h"

namespace orm {

// The criteria of calculation, kept in CRITERI.PER.
struct Criteri {
  std::string TipoPercentualeCompensi = "CALCOLATA";  // "ASSEGNATA", "CALABRIA", "NUOVA TARIFFA"
  std::string AliquoteDirezioneLavori = "UNITE";      // "SEPARATE"
  std::string ResidenzaCollaudatore = "ENTRO100KM";   // "OLTRE100KM", "FUORIREGIONE"
  double PercCompensiAssegnata = 0;
  std::uint8_t DecimaliTabelle = 0;  // 0: by the amount
  std::uint8_t DecimaliCompensi = 0;
  std::string CompensiSuSorveglianza = "SI";
  std::string CompensiSuMaggiorazione = "SI";
  std::string StampaParere = "NO";
  double QuotaFissaParere = 0;  // Euro
  double QuotaPercentualeParere = 0;
  std::string PresidenteOrdine;
  std::string StampaSpeseAggiuntive = "NO";
  std::string SpesaInarcassa = "NO";
  std::string SpesaInps = "NO";
  std::string SpesaIva = "NO";
  std::string SpesaTassaParere = "NO";
  double PercInarcassa = 2;
  double PercInps = 4;
  double PercIva = 20;
};

// The closing values of a fee note, the last line of its data file.
struct Chiusura {
  double PercDiRiduzione = 0;              // percent, 0 = none
  double Acconti = 0;                      // in the currency of the mode
  std::string TipoRiduzione;               // "CONCORDATA" or empty (Art. 4 comma 12bis L. 155/89)
  std::int16_t ApplicazioneRiduzione = 1;  // 1 fees and compensations, 2 fees, 3 compensations
};

// The programs outside, kept in EDITOR.PER.
struct Editors {
  std::string EditorTesti, EditorConfigurazione, LettorePdf;
};

struct RunState {
  RunState(Player& runPlayer, WorkFolder runFolder)
      : player(runPlayer), folder(std::move(runFolder)) {}

  Player& player;
  WorkFolder folder;

  std::string CasoDiParcella;  // three letters, empty when no case is at work
  bool ModoLire = false;       // Lire or Euro: the currency of every amount of the note
  std::string FileInt, FileInp, FileDatiAcconti;
  Chiusura chiusura;
  Criteri criteri;
  Editors editors;

  // Dialogs that keep their last choices, counters of what was printed.
  RunMemory memoria;

  // The report of the calculation that is running. It reaches the folder when the calculation has
  // ended well, so that a failure leaves an older report as it was.
  ReportPrinter NumFileUscita;

  // Decimals of money for FormattaNumero: none in Lire, two kept in Euro.
  int DecimaliValuta() const { return ModoLire ? 0 : -2; }
};

}  // namespace orm
