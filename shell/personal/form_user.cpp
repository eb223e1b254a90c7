#include "shell/personal/form_user.h"

#include <array>
#include <utility>

#include "tariff/files/user_files.h"

namespace orm {
namespace {

struct Entry {
  const char* name;
  const char* caption;
  std::string DatiProfessionista::*value;
  int width;
};

// In the order of the file. The control names are written as users of old scripts know them.
constexpr std::array<Entry, 13> kEntries = {{
    {"casellatesto1", "Cognome e Nome", &DatiProfessionista::Nome, 45},
    {"Casellatesto2", "Indirizzo", &DatiProfessionista::Indirizzo, 45},
    {"casellatesto3", "Cap", &DatiProfessionista::Cap, 8},
    {"casellatesto4", "Citta'", &DatiProfessionista::Citta, 30},
    {"casellatesto5", "Provincia", &DatiProfessionista::Provincia, 20},
    {"casellatesto6", "Tel.", &DatiProfessionista::Telefono, 20},
    {"casellatesto7", "FAX", &DatiProfessionista::Fax, 20},
    {"casellatesto8", "E-MAIL", &DatiProfessionista::Email, 45},
    {"casellatesto9", "Codice Fiscale", &DatiProfessionista::CodiceFiscale, 20},
    {"casellatesto10", "PART. I.V.A.", &DatiProfessionista::PartitaIva, 20},
    {"casellatesto11", "Ordine di appartenenza", &DatiProfessionista::Ordine, 30},
    {"casellatesto12", "N° di Iscrizione", &DatiProfessionista::NumeroIscrizione, 12},
    {"casellatesto13", "Data di iscrizione", &DatiProfessionista::DataIscrizione, 12},
}};

}  // namespace

FrmPerUtente::FrmPerUtente(RunState& stato)
    : Form("frmPER_Utente", "UTILIZZATORE DELLA PROCEDURA"),
      file_(stato.player, stato.folder, kFileUtente) {
  std::vector<Layout> righe;
  for (TestoBox& casella : casellatesto) righe.emplace_back(casella);
  SetContent(Column(
      {Fields(std::move(righe)), Group(Frame1, {Row({Option1, option2})}), Buttons({Command1})}));
  const DatiProfessionista dati =
      file_.Leggi(DatiProfessionista(), [&] { return LeggiDatiProfessionista(stato.folder); });
  for (std::size_t i = 0; i < kEntries.size(); ++i)
    casellatesto[i].SetText(dati.*kEntries[i].value);
  // A profession of another first letter counts as Ingegnere.
  professione.Choose(dati.Professione.starts_with('A') ? 1 : 0);
  Command1.onPress = [this, &stato] { TryAndStay(stato.player, [&] { Conferma(stato.folder); }); };
}

std::deque<TestoBox> FrmPerUtente::Caselle() {
  std::deque<TestoBox> caselle;
  for (const Entry& entry : kEntries)
    caselle.emplace_back(*this, entry.name, entry.caption,
                         TextOptions{.longest = 60, .width = entry.width});
  return caselle;
}

void FrmPerUtente::Conferma(const WorkFolder& folder) {
  DatiProfessionista dati;
  for (std::size_t i = 0; i < kEntries.size(); ++i)
    dati.*kEntries[i].value = casellatesto[i].Text();
  dati.Professione = option2.Value() ? "Architetto" : "Ingegnere";
  file_.Conserva();
  ScriviDatiProfessionista(folder, dati);
  Esci(Uscita::Conferma);
}

}  // namespace orm
