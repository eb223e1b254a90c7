// The laws of the house, held over the source tree: who includes whom, what depends on a locale,
// and that nothing which a person meets goes without a script.
//
// What does not hold yet stands in lists that may only shrink: an entry that is no longer needed
// fails as well.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "cases/fee_case.h"
#include "runtime/folder.h"
#include "script/statement.h"
#include "shell/commands.h"
#include "shell/help/help_books.h"
#include "shell/menu_tree.h"

namespace orm {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

const WorkFolder kRoot(ORM_SOURCE_DIR);
constexpr std::array kLogic = {"runtime",   "dialogs",    "tariff", "cases",
                               "utilities", "structures", "shell",  "interchange",
                               "jobs",      "script",     "batch"};

bool IsSource(const fs::path& path) {
  return path.extension() == ".cpp" || path.extension() == ".h";
}

// Paths from the root of all files of a kind below a folder.
template <class Wanted>
std::vector<std::string> FilesOf(const std::string& folder, Wanted&& wanted) {
  std::vector<std::string> files;
  const fs::path start = fs::path(ORM_SOURCE_DIR) / folder;
  if (!fs::exists(start)) return files;
  for (const auto& entry : fs::recursive_directory_iterator(start))
    if (entry.is_regular_file() && wanted(entry.path()))
      files.push_back(entry.path().lexically_relative(ORM_SOURCE_DIR).string());
  std::sort(files.begin(), files.end());
  return files;
}

std::vector<std::string> LogicSources() {
  std::vector<std::string> all;
  for (const char* folder : kLogic)
    for (const std::string& file : FilesOf(folder, IsSource)) all.push_back(file);
  return all;
}

// Every word with which the scripts use a verb, or the first one alone.
Names InScripts(std::string_view verb, std::size_t most = 9) {
  static const std::vector<Statement> statements = [] {
    std::vector<Statement> all;
    for (const std::string& file :
         FilesOf("tests/scripts", [](const fs::path& p) { return p.extension() == ".copione"; }))
      std::ranges::move(ParseScript(kRoot.Read(file)), std::back_inserter(all));
    return all;
  }();
  Names names;
  for (const Statement& statement : statements)
    if (statement.Verb() == verb)
      for (std::size_t i = 1; i < statement.words.size() && i <= most; ++i)
        names.insert(statement.words[i].text);
  return names;
}

// All first groups of a pattern in a text.
Names Found(const std::string& text, const char* pattern) {
  Names names;
  const std::regex regex(pattern);
  for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at)
    names.insert((*at)[1].str());
  return names;
}

// Lines of a list, without comments.
Names Listed(const std::string& file) {
  Names lines = Found(kRoot.Read(file) + "\n", "([^\\r\\n]+)[\\r\\n]");
  std::erase_if(lines, [](const std::string& line) { return line[0] == '#'; });
  return lines;
}

// Holds what is missing against the list of what may be missing.
void ExpectListed(const Names& missing, const std::string& list) {
  const Names allowed = Listed(list);
  for (const std::string& name : missing) EXPECT_TRUE(allowed.contains(name)) << name;
  for (const std::string& name : allowed)
    EXPECT_TRUE(missing.contains(name)) << name << " holds by now: take it out of " << list;
}

// A source without its comments and texts, so that only its code is left.
std::string CodeOf(const std::string& source) {
  std::string code;
  for (std::size_t i = 0; i < source.size(); ++i) {
    if (source.compare(i, 2, "//") == 0) {
      i = std::min(source.find('\n', i), source.size()) - 1;
    } else if (source[i] == '"') {
      while (++i < source.size() && source[i] != '"')
        if (source[i] == '\\') ++i;
      code += "\"\"";
    } else {
      code += source[i];
    }
  }
  return code;
}

// ---------------------------------------------------------------- floors

// The rooms of the house from the ground up; those of one row are neighbours on one floor.
const std::vector<std::vector<std::string>> kFloors = {
    {"runtime"},
    {"runtime/explanation"},
    {"dialogs", "structures/solvers"},
    {"dialogs/data_forms", "dialogs/drawing", "dialogs/rich_text"},
    {"tariff/law"},
    {"tariff/chains", "tariff/config"},
    {"tariff"},
    {"tariff/closing"},
    {"tariff/files"},
    {"shell/state"},
    {"tariff/forms"},
    {"cases/*"},  // each case a room
    {"cases", "utilities", "structures"},
    {"structures/loads"},
    {"structures/balcony", "structures/sections", "structures/steel_beams",
     "structures/truss_slab"},
    {"shell/help", "shell/letter", "shell/memo", "shell/personal"},
    {"shell"},
    {"interchange"},
    {"jobs/zip"},
    {"jobs", "script"},
    {"desktop/dress"},
    {"batch", "desktop"},
    {"desktop/drawing"},
    {"desktop/controls", "desktop/export", "desktop/guide", "desktop/notes"},
    {"desktop/viewer/parts"},
    {"desktop/player", "desktop/viewer"},
    {"desktop/desk"},
    {"desktop/programs"},
};

std::string RoomOf(const std::string& file) { return file.substr(0, file.rfind('/')); }

int FloorOf(std::string room) {
  if (room.starts_with("cases/")) room = "cases/*";
  for (std::size_t floor = 0; floor < kFloors.size(); ++floor)
    if (std::count(kFloors[floor].begin(), kFloors[floor].end(), room) > 0)
      return static_cast<int>(floor);
  return -1;
}

// A file includes its own room and what lies below it, but no neighbour.
TEST(Laws, IncludesFollowTheFloors) {
  std::vector<std::string> sources = LogicSources();
  for (const std::string& file : FilesOf("desktop", IsSource)) sources.push_back(file);
  ASSERT_GT(sources.size(), 50U);
  Names broken;
  for (const std::string& file : sources) {
    const std::string room = RoomOf(file);
    EXPECT_GE(FloorOf(room), 0) << file << " stands in no room";
    for (const std::string& included : Found(kRoot.Read(file), "#include \"([^\"]+)\"")) {
      const int floor = FloorOf(RoomOf(included));
      const bool below = floor >= 0 && floor < FloorOf(room);
      if (!below && RoomOf(included) != room) broken.insert(file + " -> " + included);
    }
  }
  ExpectListed(broken, "tests/unit/floor_exceptions.txt");
}

// A calculation gets its data read and prints on its note: all that it is made of sees no screen,
// no run state and no folder, but for the readers of the files that a user keeps.
TEST(Laws, CalculationsSeeNoScreenAndNoFolder) {
  const std::regex others(
      "tariff/(forms|files|config)/.*|cases/[^/]*|cases/.*/(input|form|row_chain|config)[^/]*");
  const std::regex unseen("(shell|dialogs|tariff/forms)/.*|runtime/folder\\.h");
  for (const char* folder : {"tariff", "cases"})
    for (const std::string& file : FilesOf(folder, IsSource)) {
      if (std::regex_match(file, others)) continue;
      for (const std::string& included : Found(kRoot.Read(file), "#include \"([^\"]+)\""))
        EXPECT_FALSE(std::regex_match(included, unseen)) << file << " -> " << included;
    }
}

// A room that holds more is several rooms.
TEST(Laws, NoRoomIsCrowded) {
  std::map<std::string, int> files;
  for (const char* folder :
       {"batch", "bench", "cases", "desktop", "dialogs", "interchange", "jobs", "runtime", "script",
        "shell", "structures", "tariff", "tests", "utilities"})
    for (const std::string& file : FilesOf(folder, IsSource)) ++files[RoomOf(file)];
  for (const auto& [room, count] : files) EXPECT_LE(count, 26) << room;
}

TEST(Laws, OnlyTheDesktopIncludesQt) {
  std::vector<std::string> sources = LogicSources();
  for (const char* folder : {"tests/unit", "tests/fuzz"})
    for (const std::string& file : FilesOf(folder, IsSource)) sources.push_back(file);
  for (const std::string& file : sources)
    EXPECT_TRUE(Found(kRoot.Read(file), "#include ([<\"]Q[^>\"]*[>\"])").empty()) << file;
}

// An Italian desktop changes the decimal mark of every one of these.
TEST(Laws, NothingDependsOnTheLocale) {
  const char* banned =
      "\\b(v?f?printf|v?sn?printf|sto(?:i|l|ul|ll|ull|f|d|ld)\\s*\\(|strto\\w+|ato(?:i|l|ll|f)\\b|"
      "to_string|setlocale|localeconv|std::locale|[io]?stringstream|strftime|strcoll|"
      "(?:to|is)(?:upper|lower)\\s*\\(|is(?:alpha|alnum|space|punct|print)\\s*\\()";
  for (const std::string& file : LogicSources())
    for (const std::string& word : Found(CodeOf(kRoot.Read(file)), banned))
      ADD_FAILURE() << file << " : " << word;
}

// ---------------------------------------------------------------- nothing without a script

// The files that the commands read and write.
Names DataFiles() {
  Names files;
  for (const std::string& file : LogicSources())
    for (const std::string& name : Found(kRoot.Read(file), "\"([A-Z]+\\.(?:PER|DAG))\""))
      files.insert(name);
  for (const FeeCase& fee : FeeCases())
    for (const std::string mark : {"", "_E"}) {
      const bool inMenu =
          fee.stem != nullptr && (mark.empty() ? fee.inLireMenu : fee.actsInEuroMenu);
      if (inMenu && fee.input != nullptr)
        files.insert("INP_" + std::string(fee.code) + mark + ".DAP");
      if (inMenu && fee.calcolo != nullptr)
        files.insert("OUT_" + std::string(fee.code) + mark + ".DOC");
    }
  files.insert("INT_PPE.DAP");  // one header for all cases
  return files;
}

// Adjacent literals of a source as one text; their escapes are those of scripts.
const std::string kLiteral = "\"(?:[^\"\\\\]|\\\\.)*\"";
const std::string kLiterals = "((?:" + kLiteral + "\\s*)+)";

void AddTexts(const std::string& code, const std::string& pattern, Names& texts) {
  for (const std::string& found : Found(code, pattern.c_str())) {
    const std::string joined = std::regex_replace(found, std::regex("([^\\\\])\"\\s*\""), "$1");
    if (joined.size() > 2) texts.insert(ParseScript("failure " + joined)[0].words[1].text);
  }
}

// Texts of message boxes: in the call that shows them, in a constant named there, and in the
// routines that word a refusal or a question.
Names BoxTexts() {
  Names texts, constants;
  std::string all;
  for (const std::string& file : LogicSources())
    // Scripts play the program of one folder: the desk tells what the jobs refuse.
    if (RoomOf(file) != "script" && RoomOf(file) != "batch" && !file.starts_with("jobs/"))
      all += kRoot.Read(file) + "\n";
  AddTexts(all, "(?:Avviso|Rifiuta)\\w*\\([^;\"]*" + kLiterals, texts);
  AddTexts(all, kLiterals + ",\\s*MessageBox::Icon", texts);
  constants.merge(Found(all, "Avviso\\w*\\((k\\w+)"));
  constants.merge(Found(all, "(k\\w+)(?:\\[\\w+\\])?,\\s*MessageBox::Icon"));
  for (const std::string& name : constants)
    for (const std::string& table :
         Found(all, ("\\b" + name + " =\\s*\\{?((?:\\s*" + kLiteral + ",?)+)").c_str()))
      AddTexts(table, kLiterals, texts);
  const std::regex words(
      "\\b(?:Rifiuto|BoxText|Domanda|Difetto|Eccesso|OltreIlMassimo)\\w*\\([^;{]*\\{\\n");
  for (std::sregex_iterator at(all.begin(), all.end(), words), end; at != end; ++at) {
    const auto body = static_cast<std::size_t>(at->position() + at->length());
    AddTexts(all.substr(body, all.find("\n}", body) - body), kLiterals, texts);
  }
  return texts;
}

// A script tells a text whole, its beginning with "…", or a longer text that holds it.
bool IsTold(const std::string& text, const Names& told) {
  return std::any_of(told.begin(), told.end(), [&](const std::string& script) {
    if (script.find(text) != std::string::npos) return true;
    const auto rest = script.find("…");
    return rest != std::string::npos && rest >= 12 && text.starts_with(script.substr(0, rest));
  });
}

Names NotCovered() {
  Names missing, forms;
  const auto miss = [&](const std::string& kind, const Names& wanted, const Names& there) {
    for (const std::string& name : wanted)
      if (!there.contains(name)) missing.insert(kind + " " + name);
  };
  const std::vector<std::string> all = CommandsOf(BuildMenu());
  miss("command", Names(all.begin(), all.end()), InScripts("menu"));
  for (const std::string& file : LogicSources())
    for (const std::string& name : Found(kRoot.Read(file), "\"(frm[A-Z]+_\\w+)\""))
      forms.insert(name);
  miss("form", forms, InScripts("dialog"));
  miss("form without a name of its own", InScripts("dialog"), forms);
  miss("file", DataFiles(), InScripts("compare", 1));
  Names told = InScripts("message");
  told.merge(InScripts("failure"));
  for (const std::string& text : BoxTexts())
    if (!IsTold(text, told)) missing.insert("message " + text);
  return missing;
}

TEST(Laws, NothingGoesWithoutAScript) {
  ASSERT_GT(BoxTexts().size(), 60U);
  ExpectListed(NotCovered(), "tests/unit/not_yet_covered.txt");
}

TEST(Laws, EveryCommandHasOnePageOfTheManual) {
  const auto books = HelpBooks();
  const auto& pages = std::ranges::find(books, kManuale, &HelpBook::file)->pages;
  for (const std::string& command : CommandsOf(BuildMenu()))
    EXPECT_EQ(
        std::ranges::count_if(pages, [&](const HelpPage& page) { return page.Describes(command); }),
        1)
        << command;
}

TEST(Laws, EveryMenuEntryIsACommand) {
  for (const std::string& name : CommandsOf(BuildMenu())) EXPECT_TRUE(IsCommand(name)) << name;
}

// ---------------------------------------------------------------- fee cases

// All files of a folder, one behind the other.
std::string TextOf(const std::string& folder) {
  std::string text;
  for (const std::string& file : FilesOf(folder, [](const fs::path&) { return true; }))
    text += kRoot.Read(file);
  return text;
}

// What makes a case whole, where the laws above and those of the help do not ask for it already.
TEST(Laws, AFeeCaseIsWhole) {
  const std::string random = TextOf("tests/unit/cases"), fuzzers = TextOf("tests/fuzz"),
                    changes = kRoot.Read("CHANGELOG.md");
  for (const FeeCase& fee : FeeCases()) {
    if (fee.stem == nullptr) continue;
    const std::string code = fee.code;
    // A case of the Euro alone has nothing to convert.
    EXPECT_TRUE(fee.input != nullptr && (fee.converti != nullptr) == fee.inLireMenu) << code;
    for (const std::string& file : {"data/sample/INT_" + code, "data/sample/INP_" + code})
      EXPECT_TRUE(kRoot.Exists(file + (fee.inLireMenu ? ".DAP" : "_E.DAP"))) << "no " << file;
    std::string folder = "tests/scripts/" + code;
    std::ranges::transform(folder, folder.begin(),
                           [](char c) { return static_cast<char>(c < 'A' ? c : c | 0x20); });
    EXPECT_NE(TextOf(folder).find("failure \""), std::string::npos) << "no failure in " << folder;
    const auto tellsItsFile = [&](const fs::path& p) {
      return p.filename() == "data.h" &&
             WorkFolder(p.parent_path()).Read("data.h").find("INP_" + code) != std::string::npos;
    };
    const std::vector<std::string> data = FilesOf("cases", tellsItsFile);
    ASSERT_EQ(data.size(), 1U) << "no data.h of a case names INP_" << code << "[_E].DAP";
    EXPECT_NE(random.find(data[0]), std::string::npos) << "no random notes of " << data[0];
    EXPECT_NE(fuzzers.find(data[0]), std::string::npos) << "no fuzzer of " << data[0];
    EXPECT_NE(changes.find(code), std::string::npos) << code << " is no news to users";
  }
}

}  // namespace
}  // namespace orm
