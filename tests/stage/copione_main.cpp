// Plays scripts: by the plain player, or on the widgets of the desktop without a screen.
#include <CLI/CLI.hpp>
#include <iostream>

#include "desktop/desktop_app.h"
#include "script/run_scripts.h"
#include "tests/stage/desktop_stage.h"

namespace {

struct Options {
  bool desktop = false;
  bool keys = false;
  bool hasty = false;
  bool update = false;
  std::string pictures;
  std::vector<std::string> scripts;
};

int PlayAll(const Options& options) {
  std::set<std::string> faults;
  const orm::Hand hand = options.hasty  ? orm::Hand::Hasty
                         : options.keys ? orm::Hand::Keys
                                        : orm::Hand::Mouse;
  const orm::StageBuilder build =
      options.desktop ? orm::DesktopStage({options.pictures, &faults, hand}) : orm::BuildPlainStage;
  const int failed =
      orm::RunScripts(options.scripts, build, {options.update, &std::cout}, std::cerr);
  for (const std::string& fault : faults) std::cerr << fault << std::endl;
  return faults.empty() ? failed : 1;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  CLI::App app("Esegue i copioni di prova di ORM2002", "orm2002-copione");
  app.add_flag("--desktop", options.desktop, "sulle finestre vere, senza schermo");
  auto* desktop = app.get_option("--desktop");
  app.add_flag("--tasti", options.keys, "con la sola tastiera")->needs(desktop);
  app.add_flag("--sviste", options.hasty, "con la sola tastiera e con sviste, subito corrette")
      ->needs(desktop);
  app.add_flag("--aggiorna", options.update, "riscrive i file attesi, da rileggere");
  app.add_option("--immagini", options.pictures, "cartella delle immagini chieste dai copioni");
  app.add_option("copioni", options.scripts, "file dei copioni")
      ->required()
      ->check(CLI::ExistingFile);
  CLI11_PARSE(app, argc, argv);
  if (!options.desktop) return PlayAll(options);
  orm::UseNoScreen();
  QApplication application(argc, argv);
  orm::DressApplication(application);
  return PlayAll(options);
}
