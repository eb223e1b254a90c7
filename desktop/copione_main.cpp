// Plays scripts: by the plain player, or on the widgets of the desktop without a screen.
#include <CLI/CLI.hpp>
#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "desktop/desktop_app.h"
#include "desktop/desktop_stage.h"
#include "runtime/failure.h"
#include "script/script_player.h"

namespace {

struct Options {
  bool desktop = false;
  bool update = false;
  std::string pictures;
  std::vector<std::string> scripts;
};

// A working folder of its own for each script, gone afterwards.
class FreshFolder {
 public:
  FreshFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "orm2002-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
      throw orm::RuntimeFailure("Non si può creare una cartella di lavoro.");
    path_ = name;
  }
  ~FreshFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  FreshFolder(const FreshFolder&) = delete;
  FreshFolder& operator=(const FreshFolder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

std::optional<orm::Mismatch> Play(const std::string& script, const Options& options,
                                  std::set<std::string>& faults) {
  const std::filesystem::path path = std::filesystem::absolute(script);
  const orm::WorkFolder scriptFolder(path.parent_path().string());
  try {
    const FreshFolder fresh;
    orm::ScriptPlayer player(orm::ParseScript(scriptFolder.Read(path.filename().string())),
                             scriptFolder, orm::WorkFolder(fresh.Path()),
                             {options.update, &std::cout});
    return player.Play(options.desktop ? orm::DesktopStage({options.pictures, &faults})
                                       : orm::BuildPlainStage);
  } catch (const orm::Mismatch& mismatch) {
    return mismatch;
  } catch (const orm::RuntimeFailure& failure) {
    return orm::Mismatch{0, failure.Text()};
  }
}

int PlayAll(const Options& options) {
  int failed = 0;
  std::set<std::string> faults;
  for (const std::string& script : options.scripts) {
    const auto mismatch = Play(script, options, faults);
    if (!mismatch) continue;
    ++failed;
    std::cerr << script << ":" << mismatch->line << ": " << mismatch->text << std::endl;
  }
  for (const std::string& fault : faults) std::cerr << fault << std::endl;
  return failed == 0 && faults.empty() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  CLI::App app("Esegue i copioni di prova di ORM2002", "orm2002-copione");
  app.add_flag("--desktop", options.desktop, "sulle finestre vere, senza schermo");
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
