#include "structures/resumable_form.h"

#include <map>
#include <utility>

#include "dialogs/data_forms/form_file.h"
#include "dialogs/message_boxes.h"
#include "structures/form_kept_data.h"

namespace orm {
namespace {

// Under which the data of a form were kept or opened last.
struct UltimiNomi {
  std::map<std::string, std::string> perForm;
};

}  // namespace

FormRiprendibile::FormRiprendibile(std::string nome, std::string titolo, RunState& stato)
    : FormDiCalcolo(std::move(nome), std::move(titolo), stato.player), stato_(stato) {
  cmdSALVA.SetHint("Tiene i dati sotto un nome, nella cartella di lavoro.");
  cmdAPRI.SetHint("Riporta dei dati salvati; quelli di ora tornano con RIPRENDI I DATI.");
  cmdSALVA.onPress = [this] { TryAndStay(stato_.player, [this] { Salva(); }); };
  cmdAPRI.onPress = [this] { TryAndStay(stato_.player, [this] { Apri(); }); };
}

void FormRiprendibile::Presenta() {
  nuovi_ = FormValues(*this);
  stato_.player.Show(*this);
}

void FormRiprendibile::Resume(const FormValues& values) {
  FormDiCalcolo::Resume(values);
  SegnaCambiati();
}

// The options that are chosen in the dialogs that belong to this one. No two of these are of one
// name.
std::vector<std::string> FormRiprendibile::Hidden() const {
  std::vector<std::string> scelte;
  for (const Form* annessa : Annesse())
    for (const Control* control : annessa->Controls())
      if (const auto* opt = dynamic_cast<const OptionButton*>(control); opt && opt->Value())
        scelte.push_back(opt->Name());
  return scelte;
}

void FormRiprendibile::SetHidden(const std::vector<std::string>& values) {
  for (const Form* annessa : Annesse())
    for (const std::string& nome : values)
      if (auto* opt = dynamic_cast<OptionButton*>(annessa->Find(nome))) opt->SetValue(true);
}

void FormRiprendibile::Salva() {
  std::string& ultimo = stato_.memoria.The<UltimiNomi>().perForm[Name()];
  const Drafts::Subject verifica(stato_.player.DraftsOfRun(), Name());
  FrmVerSalva form(stato_, NomiDatiSalvati(stato_.folder, Name()), ultimo);
  stato_.player.Show(form);
  if (!form.Confermato()) return;
  const std::string file = FileDatiSalvati(Name(), form.Nome());
  if (stato_.folder.Exists(file) &&
      stato_.player.Ask({kAttenzione, "ESISTONO GIÀ DATI CON QUESTO NOME\nSOSTITUIRLI ?",
                         MessageBox::Icon::Question, MessageBox::Buttons::YesNo}) != Answer::Yes)
    return;
  DataWriter dati;
  ScriviDatiForm(dati, *this);
  for (const Form* annessa : Annesse()) ScriviDatiForm(dati, *annessa);
  dati.Replace(stato_.folder, file);
  ultimo = form.Nome();
}

void FormRiprendibile::Apri() {
  const std::vector<std::string> nomi = NomiDatiSalvati(stato_.folder, Name());
  if (nomi.empty()) {
    stato_.player.Ask(Avviso("NON CI SONO DATI SALVATI DI QUESTA VERIFICA"));
    return;
  }
  const Drafts::Subject verifica(stato_.player.DraftsOfRun(), Name());
  FrmVerApri form(nomi, stato_.memoria.The<UltimiNomi>().perForm[Name()]);
  stato_.player.Show(form);
  if (form.Confermato()) Carica(form.Nome());
}

// The whole file is read before anything changes.
void FormRiprendibile::Carica(const std::string& nome) {
  DataReader file(stato_.folder, FileDatiSalvati(Name(), nome));
  const FormValues letti = LeggiDatiForm(file, *this, nuovi_);
  std::vector<FormValues> scelte;
  for (const Form* annessa : Annesse())
    scelte.push_back(LeggiDatiForm(file, *annessa, FormValues(*annessa)));
  file.ExpectEnd();

  stato_.memoria.The<UltimiNomi>().perForm[Name()] = nome;
  stato_.player.DraftsOfRun().KeepPresent(*this);
  for (std::size_t i = 0; i < scelte.size(); ++i) scelte[i].PutInto(*Annesse()[i]);
  Resume(letti);
  if (Control* primo = FirstFocus()) MoveFocus(*primo);
}

}  // namespace orm
