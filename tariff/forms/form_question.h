// frmGEN_NuovoCaso and frmGEN_SiNo: the question at the beginning of an input step, and questions
// with the answers "SI" and "NO".
#pragma once

#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

// How an input begins: with a new note, with a change of the one stored, or not at all.
enum class Inizio { Nuova, Variazione, Rinuncia };

// The note that the folder holds, as the question tells it.
struct NotaArchiviata {
  std::string committente, oggetto, giorno;  // the day on which it was stored
  std::string contenuto;                     // "3 lotti"; empty where the case has no list
};

class FrmGenNuovoCaso : public Form {
 public:
  explicit FrmGenNuovoCaso(const NotaArchiviata& nota);

  Inizio Risposta = Inizio::Rinuncia;  // until a button says otherwise

  Frame fraArchivio{*this, "fraArchivio", "PARCELLA ARCHIVIATA"};
  TestoBox txtCommittente{*this, "txtCommittente", "Committente", kMostrato};
  TestoBox txtOggetto{*this, "txtOggetto", "Oggetto", kMostrato};
  TestoBox txtGiorno{*this, "txtGiorno", "Archiviata il", {.readOnly = true, .width = 11}};
  TestoBox txtContenuto{*this, "txtContenuto", "Contiene", {.readOnly = true, .width = 24}};
  Button cmdVARIAZIONE{*this, "cmdVARIAZIONE", "VARIAZIONE DATI", Button::Role::Default};
  Label lblVariazione{*this, "lblVariazione", "riprende i dati archiviati, finestra per finestra"};
  Button cmdNuova{*this, "cmdNuova", "NUOVA PARCELLA"};
  Label lblNuova{*this, "lblNuova",
                 "comincia da capo; alla fine prende il posto di quella archiviata"};

 private:
  static inline const TextOptions kMostrato{.longest = 1000, .readOnly = true, .width = 50};
};

class FrmGenSiNo : public Form {
 public:
  // `passo`: of the heading; `avvertenza`: a longer warning, hidden when empty.
  FrmGenSiNo(std::string titolo, std::string passo, std::string domanda, std::string avvertenza,
             const std::string& risposta);

  std::string Risposta;  // "SI" or "NO"; as given when the form was left by its window

  Label Label1{*this, "Label1"};
  OptionGroup scelta;
  OptionButton OptionSI{*this, "OptionSI", "- SI", scelta};
  OptionButton OptionNO{*this, "OptionNO", "- NO", scelta};
  Label Avvertenza{*this, "Avvertenza", "", Label::Style::Warning};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
};

// Shows the question; the answer.
std::string ChiediSiNo(Player& player, std::string titolo, std::string passo, std::string domanda,
                       std::string avvertenza, const std::string& risposta);

// Whether a testing or a certificate is wanted; without supervision there is none.
std::string ChiediCertificato(Player& player, std::string titolo, bool conDirezione,
                              const std::string& risposta);

// The question of the increase for a partial commission (art. 18), and what it warns of.
inline constexpr const char* kPassoParziale = "incarico parziale";
inline constexpr const char* kMaggiorazioneParziale = "MAGGIORAZIONE PER INCARICO PARZIALE ?";
inline constexpr const char* kAvvertenzaParziale =
    "La procedura non esegue alcun controllo di leggittimità : \n"
    "per cui se indebitamente richiesta, la maggiorazione potrebbe essere applicata "
    "contemporaneamente sia alla Progettazione sia alla Direzione Lavori.";

}  // namespace orm
