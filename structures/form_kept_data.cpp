#include "structures/form_kept_data.h"

#include <algorithm>

#include "dialogs/message_boxes.h"
#include "runtime/text.h"

namespace orm {
namespace {

constexpr std::string_view kEnding = ".VER";

std::string Inizio(std::string_view form) {
  constexpr std::string_view kForm = "frmVER_";
  return std::string(form.substr(form.starts_with(kForm) ? kForm.size() : 0)) + "_";
}

// A name that every file system takes, and that no one reads as a path.
bool NomeAccettabile(const std::string& nome) {
  return !nome.empty() && nome.find_first_of("/\\:*?\"<>|") == std::string::npos;
}

}  // namespace

std::string FileDatiSalvati(std::string_view form, std::string_view nome) {
  return Inizio(form) + std::string(nome) + std::string(kEnding);
}

std::vector<std::string> NomiDatiSalvati(const WorkFolder& folder, std::string_view form) {
  const std::string inizio = Inizio(form);
  std::vector<std::string> nomi;
  for (const std::string& file : folder.Names())
    if (file.size() > inizio.size() + kEnding.size() && file.starts_with(inizio) &&
        file.ends_with(kEnding))
      nomi.push_back(file.substr(inizio.size(), file.size() - inizio.size() - kEnding.size()));
  return nomi;
}

FrmVerSalva::FrmVerSalva(RunState& stato, const std::vector<std::string>& nomi,
                         const std::string& nome)
    : Form("frmVER_SALVA", "SALVA I DATI"), stato_(stato) {
  lstNomi.SetItems(nomi);
  lstNomi.SetVisible(!nomi.empty());
  txtNome.SetText(nome);
  lstNomi.onChange = [this] { txtNome.SetText(lstNomi.ShownText()); };
  cmdOK.onPress = [this] { Accetta(); };
  cmdANNULLA.onPress = [this] { Close(); };
  SetContent(Column({Fields({txtNome}), lstNomi, Buttons({cmdOK, cmdANNULLA})}));
}

void FrmVerSalva::Accetta() {
  nome_ = TrimRight(txtNome.Text());
  if (NomeAccettabile(nome_)) return Esci(Uscita::Conferma);
  stato_.player.Ask(Avviso("IL NOME NON È ACCETTABILE\nSCRIVERLO SENZA  / \\ : * ? \" < > |"));
  MoveFocus(txtNome);
}

FrmVerApri::FrmVerApri(const std::vector<std::string>& nomi, const std::string& nome)
    : Form("frmVER_APRI", "APRI I DATI") {
  lstNomi.SetItems(nomi);
  lstNomi.SetIndex(std::max(lstNomi.PlaceOf(nome), 0));
  cmdOK.onPress = [this] { Esci(Uscita::Conferma); };
  cmdANNULLA.onPress = [this] { Close(); };
  SetContent(Column({lstNomi, Buttons({cmdOK, cmdANNULLA})}));
}

}  // namespace orm
