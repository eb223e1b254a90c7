// Every form that a script shows holds the rules of forms, at the moment when it is shown.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "script/run_scripts.h"
#include "tests/unit/form_rules.h"

namespace orm {
namespace {

class CheckingPlayer : public Player {
 public:
  CheckingPlayer(Player& person, std::set<std::string>& broken)
      : person_(person), broken_(broken) {}
  void Show(Form& form) override {
    for (const std::string& fault : FormRules::Broken(form)) broken_.insert(fault);
    person_.Show(form);
  }
  Answer Ask(const MessageBox& box) override { return person_.Ask(box); }
  std::optional<std::string> ChooseFile(const FileChoice& choice) override {
    return person_.ChooseFile(choice);
  }
  void StartProgram(const std::string& program, const std::string& argument) override {
    person_.StartProgram(program, argument);
  }
  bool ProgramExists(const std::string& path) override { return person_.ProgramExists(path); }
  OutsidePrograms DefaultPrograms() override { return person_.DefaultPrograms(); }
  ScreenSize Screen() override { return person_.Screen(); }
  Date Today() override { return person_.Today(); }

 private:
  Player& person_;
  std::set<std::string>& broken_;
};

class CheckingStage : public Stage {
 public:
  CheckingStage(std::unique_ptr<Stage> stage, std::set<std::string>& broken)
      : stage_(std::move(stage)), player_(stage_->People(), broken) {}
  Player& People() override { return player_; }
  void Raise(MainWindow& window) override { stage_->Raise(window); }
  std::string Choose(MainWindow& window, std::string_view command) override {
    return stage_->Choose(window, command);
  }
  void AskHelp(MainWindow& window) override { stage_->AskHelp(window); }

 private:
  std::unique_ptr<Stage> stage_;
  CheckingPlayer player_;
};

TEST(Forms, HoldTheirRulesWhereverAScriptShowsThem) {
  std::vector<std::string> scripts;
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(ORM_SOURCE_DIR "/tests/scripts"))
    if (entry.path().extension() == ".copione") scripts.push_back(entry.path().string());
  ASSERT_GT(scripts.size(), 5U);
  std::set<std::string> broken;
  std::ostringstream told;
  RunScripts(
      scripts,
      [&](Actor& actor, const WorkFolder& folder) {
        return std::make_unique<CheckingStage>(BuildPlainStage(actor, folder), broken);
      },
      {}, told);
  for (const std::string& fault : broken) ADD_FAILURE() << fault;
}

// The rules can break: a form that breaks each of them.
TEST(Forms, RulesSeeWhatIsWrong) {
  Form form("frmX", "");
  Button a(form, "a", "&Uno", Button::Role::Default);
  Button b(form, "a", "D&ue", Button::Role::Default);
  InterBox c(form, "c", "");
  InterBox lost(form, "", "Numero");
  form.SetContent(Column({a, b, c}));
  EXPECT_EQ(FormRules::Broken(form),
            (std::vector<std::string>{
                "frmX.frmX : l'ordine di tabulazione non è quello di lettura, o manca un controllo",
                "frmX.a : nome doppio", "frmX.? : senza nome", "frmX.a : tasto già usato",
                "frmX.frmX : più pulsanti predefiniti", "frmX.c : senza etichetta"}));
}

}  // namespace
}  // namespace orm
