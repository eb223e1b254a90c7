#include "shell/shell.h"

#include <exception>
#include <new>

#include "shell/commands.h"
#include "shell/form_title.h"
#include "shell/help/help.h"
#include "shell/help/help_books.h"
#include "shell/installed_files.h"
#include "shell/menu_tree.h"
#include "shell/personal/form_editor.h"
#include "shell/personal/settings.h"
#include "shell/shell_boxes.h"
#include "tariff/files/user_files.h"
#include "tariff/forms/input_step.h"
#include "utilities/pension_file.h"

namespace orm {

Shell::Shell(Player& player, WorkFolder folder)
    : title_("   ORM2002      Onorari Rilievi Misure      La Brentoli - Catanzaro"),
      menu_(BuildMenu()),
      stato_(player, folder),
      bozze_(player.DraftsOfRun(), std::move(folder), "finestre") {}

void Shell::Guard(const std::function<void()>& step) {
  try {
    step();
  } catch (const RuntimeFailure& failure) {
    stato_.player.Ask(FailureBox(failure));
  } catch (const std::bad_alloc&) {
    stato_.player.Ask(FailureBox(RuntimeFailure("La memoria non basta per eseguire il comando.")));
  } catch (const std::exception& error) {
    stato_.player.Ask(FailureBox(RuntimeFailure(std::string("Errore interno: ") + error.what())));
  }
  if (const std::string why = stato_.folder.TakeWarning(); !why.empty())
    stato_.player.Ask(AvvisoVersioneNonConservata(why));
}

bool Shell::Load() {
  const ScreenSize screen = stato_.player.Screen();
  if (screen.width < 1024 || screen.height < 768) {
    stato_.player.Ask(AvvisoRisoluzione());
    ended_ = true;
    return false;
  }
  ReadSettings();
  Guard([this] {
    if (!stato_.folder.Exists(kFileRedditi)) ScriviRedditi(stato_.folder, RedditiIniziali());
  });
  Guard([this] {
    if (!stato_.folder.Exists(kFileUtente)) ScriviUtentePredefinito(stato_.folder);
  });
  if (bozze_.Load()) stato_.player.Ask(AvvisoBozze());
  return true;
}

void Shell::PreparaCartella(const std::string& installati) {
  Guard([&] { DisponiFileInstallati(stato_, WorkFolder(installati)); });
}

void Shell::ReadSettings() {
  // A damaged file leaves the defaults in force.
  stato_.criteri = {};
  const OutsidePrograms programs = stato_.player.DefaultPrograms();
  stato_.editors = {programs.reports, programs.configuration, programs.pdf};
  Guard([this] { LeggiEditor(stato_); });
  Guard([this] { LeggiCriteri(stato_); });
}

void Shell::FirstActivation() {
  Guard([this] {
    FrmGenPresentazione title;
    stato_.player.Show(title);
  });
  Guard([this] {
    if (EditorPresenti(stato_, stato_.editors)) return;
    FrmPerEditor editors(stato_);
    stato_.player.Show(editors);
  });
}

void Shell::MenuOpened(std::string_view topName) {
  if (topName == kMenuUtilita || topName == kMenuLire) stato_.ModoLire = true;
  if (topName == kMenuEuro) stato_.ModoLire = false;
}

void Shell::Choose(std::string_view commandName) {
  if (commandName == "File_Esci") {
    ended_ = true;
    return;
  }
  running_ = commandName;
  auto& nota = stato_.memoria.The<NotaSalvata>();
  nota = {};
  Guard([&] { RunCommand(stato_, commandName); });
  running_.clear();
  if (!nota.testo.empty()) saved_ = {nota.testo, CalculationOf(commandName)};
}

void Shell::Help(std::string_view commandName) {
  const std::string_view about = commandName.empty() ? running_ : commandName;
  Guard([&] { MostraGuida(stato_, HelpFor(about)); });
}

}  // namespace orm
