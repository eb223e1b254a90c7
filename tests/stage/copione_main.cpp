// Plays scripts: by the plain player, or on the widgets of the desktop without a screen.
#include <CLI/CLI.hpp>
#include <iostream>

#include "cases/fee_case.h"
#include "desktop/desktop_app.h"
#include "script/run_scripts.h"
#include "tests/stage/desktop_stage.h"

namespace {

struct Options {
  bool desktop = false;
  bool keys = false;
  bool hasty = false;
  bool rehearseAll = false;
  bool update = false;
  bool drawings = false, whole = false, dark = false;
  std::string pictures;
  std::string screen = "1280x1024";
  std::vector<std::string> scripts;
};

QSize QSizeOf(const std::string& text) {
  const QStringList sides = QString::fromStdString(text).split('x');
  return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
}

// Of each case in each currency.
std::vector<std::string> InputCommands() {
  std::vector<std::string> commands;
  for (const orm::FeeCase& fee : orm::FeeCases()) {
    if (fee.stem == nullptr) continue;
    if (fee.inLireMenu) commands.push_back(std::string(fee.stem) + "_ID");
    if (fee.actsInEuroMenu) commands.push_back(std::string(fee.stem) + "_E_ID");
  }
  return commands;
}

int PlayAll(const Options& options) {
  std::set<std::string> faults;
  std::set<std::pair<std::string, bool>> rehearsed;
  const orm::Hand hand = options.hasty  ? orm::Hand::Hasty
                         : options.keys ? orm::Hand::Keys
                                        : orm::Hand::Mouse;
  // The keyboard's hands meet the same windows in the same states, where the mouse's has looked.
  const bool looks = hand == orm::Hand::Mouse;
  const orm::StageBuilder build =
      options.desktop
          ? orm::DesktopStage({options.pictures, looks ? &faults : nullptr, hand, options.drawings,
                               options.whole, options.hasty ? &rehearsed : nullptr})
          : orm::BuildPlainStage;
  const int failed =
      orm::RunScripts(options.scripts, build, {options.update, &std::cout}, std::cerr);
  if (options.hasty) std::cout << rehearsed.size() << " parcelle ripetute con sviste" << std::endl;
  if (options.rehearseAll)
    for (const std::string& command : InputCommands())
      if (!rehearsed.contains({command, false}) && !rehearsed.contains({command, true}))
        faults.insert(command + " : nessun copione ne ripete la parcella con sviste");
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
  app.add_flag("--ripetute", options.rehearseAll,
               "una parcella di ogni voce dei menù deve ripetersi con sviste");
  app.add_flag("--aggiorna", options.update, "riscrive i file attesi, da rileggere");
  app.add_option("--immagini", options.pictures, "cartella delle immagini chieste dai copioni");
  app.add_flag("--disegni", options.drawings, "con le immagini, ogni disegno come file e stampato");
  app.add_option("--schermo", options.screen, "misure dello schermo, 1280x1024")
      ->check([](const std::string& text) {
        return QSizeOf(text).isEmpty() ? std::string("non è LARGHEZZAxALTEZZA") : std::string();
      });
  app.add_flag("--pieno", options.whole, "le finestre che crescono occupano lo schermo");
  app.add_flag("--scuro", options.dark, "con colori scuri");
  app.add_option("copioni", options.scripts, "file dei copioni")
      ->required()
      ->check(CLI::ExistingFile);
  CLI11_PARSE(app, argc, argv);
  if (!options.desktop) return PlayAll(options);
  const QSize screen = QSizeOf(options.screen);
  orm::UseNoScreen(screen.width(), screen.height());
  QApplication application(argc, argv);
  orm::DressApplication(application);
  if (options.dark) orm::UseDarkColours();
  return PlayAll(options);
}
