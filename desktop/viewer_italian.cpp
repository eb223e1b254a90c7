// Captions of Qt's own dialogs and menus, by their English text.
#include "desktop/viewer_italian.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orm {
namespace {

struct Caption {
  std::string_view english, italian;
};

// clang-format off
constexpr auto kCaptions = std::to_array<Caption>({
    // Editing and buttons.
    {"&Undo", "&Annulla"},
    {"&Redo", "Ri&peti"},
    {"Cu&t", "&Taglia"},
    {"&Copy", "&Copia"},
    {"&Paste", "&Incolla"},
    {"Delete", "Elimina"},
    {"Select All", "Seleziona tutto"},
    {"OK", "OK"},
    {"Cancel", "Annulla"},
    {"&Cancel", "&Annulla"},
    {"Open", "Apri"},
    {"Save", "Salva"},
    {"Close", "Chiudi"},
    {"&Yes", "&Sì"},
    {"&No", "&No"},
    // Choosing a file.
    {"&Open", "&Apri"},
    {"&Save", "&Salva"},
    {"&Rename", "&Rinomina"},
    {"&Delete", "&Elimina"},
    {"&New Folder", "&Nuova cartella"},
    {"New Folder", "Nuova cartella"},
    {"All Files (*)", "Tutti i file (*)"},
    {"Show &hidden files", "Mostra i file &nascosti"},
    {"Show ", "Mostra "},
    {"Back", "Indietro"},
    {"Forward", "Avanti"},
    {"Go back", "Torna indietro"},
    {"Go forward", "Vai avanti"},
    {"Parent Directory", "Cartella superiore"},
    {"Go to the parent directory", "Vai alla cartella superiore"},
    {"Create New Folder", "Crea una nuova cartella"},
    {"Create a New Folder", "Crea una nuova cartella"},
    {"List View", "Elenco"},
    {"Change to list view mode", "Mostra come elenco"},
    {"Detail View", "Dettagli"},
    {"Change to detail view mode", "Mostra con i dettagli"},
    {"Sidebar", "Barra laterale"},
    {"List of places and bookmarks", "Luoghi e segnalibri"},
    {"Files", "File"},
    {"Look in:", "Cerca in:"},
    {"File &name:", "&Nome del file:"},
    {"Files of type:", "Tipo di file:"},
    {"Directory:", "Cartella:"},
    {"Drive", "Disco"},
    {"Folder", "Cartella"},
    {"File", "File"},
    {"%1 File", "File %1"},
    {"Computer", "Computer"},
    {"My Computer", "Computer"},
    {"Name", "Nome"},
    {"Size", "Dimensione"},
    {"Type", "Tipo"},
    {"Kind", "Tipo"},
    {"Date Modified", "Ultima modifica"},
    {"Remove", "Togli"},
    {"%1 bytes", "%1 byte"},
    {"%1 already exists.\nDo you want to replace it?", "%1 esiste già.\nLo si vuole sostituire?"},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.", "%1\nLa cartella non esiste.\nControllare il nome."},
    {"%1\nFile not found.\nPlease verify the correct file name was given.", "%1\nIl file non esiste.\nControllare il nome."},
    {"'%1' is write protected.\nDo you want to delete it anyway?", "«%1» è protetto da scrittura.\nLo si vuole eliminare lo stesso?"},
    {"Are you sure you want to delete '%1'?", "Eliminare davvero «%1»?"},
    {"Could not delete directory.", "La cartella non può essere eliminata."},
    {"Invalid filename", "Nome di file non valido"},
    {"<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters or no punctuation marks.", "<b>Il nome «%1» non può essere usato.</b><p>Provarne un altro, più corto o senza segni di punteggiatura."},
    // The print dialog.
    {"Print", "Stampa"},
    {"&Print", "&Stampa"},
    {"&Options >>", "&Opzioni >>"},
    {"&Options <<", "&Opzioni <<"},
    {"Print to File (PDF)", "Stampa su file (PDF)"},
    {"Write PDF file", "Scrivi il file PDF"},
    {"Local file", "File locale"},
    {"Printer", "Stampante"},
    {"&Name:", "&Nome:"},
    {"P&roperties", "P&roprietà"},
    {"Location:", "Luogo:"},
    {"Preview", "Anteprima"},
    {"Type:", "Tipo:"},
    {"Output &file:", "&File da scrivere:"},
    {"Copies", "Copie"},
    {"Options", "Opzioni"},
    {"Print range", "Pagine da stampare"},
    {"Print all", "Tutte"},
    {"Pages from", "Pagine da"},
    {"to", "a"},
    {"Pages", "Pagine"},
    {"Current Page", "Pagina corrente"},
    {"Selection", "Selezione"},
    {"Page Set:", "Insieme di pagine:"},
    {"All Pages", "Tutte le pagine"},
    {"Odd Pages", "Pagine dispari"},
    {"Even Pages", "Pagine pari"},
    {"Output Settings", "Modo di stampa"},
    {"Copies:", "Copie:"},
    {"Collate", "Fascicola"},
    {"Reverse", "Ordine inverso"},
    {"Color Mode", "Colore"},
    {"Color", "A colori"},
    {"Grayscale", "Toni di grigio"},
    {"Double Sided Printing", "Stampa fronte e retro"},
    {"Off", "No"},
    {"Long side binding", "Rilegatura sul lato lungo"},
    {"Short side binding", "Rilegatura sul lato corto"},
    {"Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.", "Pagine o intervalli separati da virgole; un intervallo è di due numeri separati da un trattino. Per esempio 3,5-7,9 stampa le pagine 3, 5, 6, 7 e 9."},
    {"File exists", "Il file esiste"},
    {"<qt>Do you want to overwrite it?</qt>", "<qt>Lo si vuole sovrascrivere?</qt>"},
    {"%1 is a directory.\nPlease choose a different file name.", "%1 è una cartella.\nScegliere un altro nome di file."},
    {"File %1 is not writable.\nPlease choose a different file name.", "Il file %1 non può essere scritto.\nScegliere un altro nome di file."},
    {"%1 already exists.\nDo you want to overwrite it?", "%1 esiste già.\nLo si vuole sovrascrivere?"},
    {"The 'From' value cannot be greater than the 'To' value.", "La prima pagina non può venire dopo l'ultima."},
    {"Print To File ...", "Stampa su file..."},
    // The properties of a printer.
    {"Printer Properties", "Proprietà della stampante"},
    {"Job Options", "Opzioni della stampa"},
    {"Page", "Pagina"},
    {"Advanced", "Avanzate"},
    {"Paper", "Carta"},
    {"Page size:", "Formato:"},
    {"Width:", "Larghezza:"},
    {"Height:", "Altezza:"},
    {"Paper source:", "Alimentazione:"},
    {"Orientation", "Orientamento"},
    {"Portrait", "Verticale"},
    {"Landscape", "Orizzontale"},
    {"Reverse landscape", "Orizzontale rovesciato"},
    {"Reverse portrait", "Verticale rovesciato"},
    {"Margins", "Margini"},
    {"top margin", "margine superiore"},
    {"left margin", "margine sinistro"},
    {"right margin", "margine destro"},
    {"bottom margin", "margine inferiore"},
    {"Page Layout", "Disposizione"},
    {"Page order:", "Ordine delle pagine:"},
    {"Pages per sheet:", "Pagine per foglio:"},
    {"Custom", "Personalizzato"},
    {"Millimeters (mm)", "Millimetri (mm)"},
    {"Inches (in)", "Pollici (in)"},
    {"Points (pt)", "Punti (pt)"},
});
// clang-format on

}  // namespace

QString ItalianCaptions::translate(const char*, const char* source, const char*, int) const {
  const auto* found =
      std::find_if(kCaptions.begin(), kCaptions.end(),
                   [source](const Caption& caption) { return caption.english == source; });
  return found == kCaptions.end()
             ? QString()
             : QString::fromUtf8(found->italian.data(),
                                 static_cast<qsizetype>(found->italian.size()));
}

}  // namespace orm
