#include "desktop/italian_texts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orm {
namespace {

struct Text {
  std::string_view source;
  const char* italian;
};

// Menus of entry fields, file choice, printing.
constexpr std::array kTexts = {
    Text{"&Undo", "&Annulla"},
    Text{"&Redo", "&Ripeti"},
    Text{"Cu&t", "&Taglia"},
    Text{"&Copy", "&Copia"},
    Text{"Copy &Link Location", "Copia l'indirizzo"},
    Text{"&Paste", "&Incolla"},
    Text{"Delete", "Elimina"},
    Text{"Select All", "Seleziona tutto"},
    Text{"OK", "OK"},
    Text{"&OK", "&OK"},
    Text{"Cancel", "Annulla"},
    Text{"&Cancel", "&Annulla"},
    Text{"Close", "Chiudi"},
    Text{"&Close", "&Chiudi"},
    Text{"&Yes", "&Sì"},
    Text{"&No", "&No"},
    Text{"Save", "Salva"},
    Text{"&Save", "&Salva"},
    Text{"Open", "Apri"},
    Text{"&Open", "&Apri"},
    Text{"&Choose", "&Scegli"},
    Text{"Look in:", "Cerca in:"},
    Text{"File &name:", "&Nome del file:"},
    Text{"Files of type:", "Tipo di file:"},
    Text{"Back", "Indietro"},
    Text{"Forward", "Avanti"},
    Text{"Parent Directory", "Cartella superiore"},
    Text{"Create New Folder", "Nuova cartella"},
    Text{"New Folder", "Nuova cartella"},
    Text{"&New Folder", "&Nuova cartella"},
    Text{"&Rename", "&Rinomina"},
    Text{"&Delete", "&Elimina"},
    Text{"Show &hidden files", "Mostra i file &nascosti"},
    Text{"List View", "Elenco"},
    Text{"Detail View", "Dettagli"},
    Text{"Name", "Nome"},
    Text{"Size", "Dimensione"},
    Text{"Type", "Tipo"},
    Text{"Date Modified", "Modificato il"},
    Text{"Computer", "Computer"},
    Text{"Folder", "Cartella"},
    Text{"All Files (*)", "Tutti i file (*)"},
    Text{"%1 already exists.\nDo you want to replace it?", "%1 esiste già.\nSostituirlo?"},
    Text{"%1\nFile not found.\nPlease verify the correct file name was given.",
         "%1\nIl file non è stato trovato.\nVerificare il nome."},
    Text{"Print", "Stampa"},
    Text{"&Print", "&Stampa"},
    Text{"Print to File (PDF)", "Stampa su file (PDF)"},
    Text{"Print To File ...", "Stampa su file..."},
    Text{"Output &file:", "&File:"},
    Text{"Printer", "Stampante"},
    Text{"&Name:", "&Nome:"},
    Text{"Location:", "Posizione:"},
    Text{"P&roperties", "P&roprietà"},
    Text{"&Options >>", "&Opzioni >>"},
    Text{"&Options <<", "&Opzioni <<"},
    Text{"Copies", "Copie"},
    Text{"Copies:", "Copie:"},
    Text{"Collate", "Fascicola"},
    Text{"Reverse", "Ordine inverso"},
    Text{"Options", "Opzioni"},
    Text{"Print range", "Pagine"},
    Text{"Print all", "Tutte"},
    Text{"Pages from", "Dalla"},
    Text{"to", "alla"},
    Text{"Pages", "Pagine"},
    Text{"Current Page", "Pagina corrente"},
    Text{"Selection", "Selezione"},
    Text{"Color Mode", "Colori"},
    Text{"Color", "A colori"},
    Text{"Grayscale", "Toni di grigio"},
    Text{"Duplex Printing", "Fronte e retro"},
    Text{"None", "No"},
    Text{"Long side", "Lato lungo"},
    Text{"Short side", "Lato corto"},
    Text{"Page Setup", "Imposta pagina"},
    Text{"Page size:", "Formato:"},
    Text{"Width:", "Larghezza:"},
    Text{"Height:", "Altezza:"},
    Text{"Paper", "Carta"},
    Text{"Paper source:", "Alimentazione:"},
    Text{"Orientation", "Orientamento"},
    Text{"Portrait", "Verticale"},
    Text{"Landscape", "Orizzontale"},
    Text{"Margins", "Margini"},
};

}  // namespace

QString ItalianTexts::translate(const char*, const char* source, const char*, int) const {
  const auto found = std::find_if(kTexts.begin(), kTexts.end(),
                                  [&](const Text& text) { return text.source == source; });
  return found == kTexts.end() ? QString() : QString::fromUtf8(found->italian);
}

}  // namespace orm
