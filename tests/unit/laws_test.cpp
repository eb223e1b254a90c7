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
#include "shell/commands.h"
#include "shell/menu_tree.h"

namespace orm {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

const WorkFolder kRoot(ORM_SOURCE_DIR);
constexpr std::array kLogic = {"runtime",    "dialogs", "tariff", "cases", "utilities",
                               "structures", "shell",   "script", "batch"};

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

std::string AllScripts() {
  std::string text;
  for (const std::string& file :
       FilesOf("tests/scripts", [](const fs::path& p) { return p.extension() == ".copione"; }))
    text += kRoot.Read(file) + "\n";
  return text;
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
    {"dialogs"},
    {"shell/state"},
    {"tariff/law"},
    {"tariff"},
    {"tariff/files"},
    {"tariff/forms"},
    {"cases/agp", "cases/coa", "cases/cos", "cases/esl", "cases/geo", "cases/pdl", "cases/ppe",
     "cases/sic", "cases/stc"},
    {"cases", "utilities", "structures"},
    {"structures/loads"},
    {"structures/balcony", "structures/sections", "structures/steel_beams",
     "structures/truss_slab"},
    {"shell/help", "shell/letter", "shell/memo", "shell/personal"},
    {"shell"},
    {"script"},
    {"batch", "desktop"},
    {"desktop/controls", "desktop/export", "desktop/guide", "desktop/notes"},
    {"desktop/player", "desktop/viewer"},
    {"desktop/programs"},
};

std::string RoomOf(const std::string& file) { return file.substr(0, file.rfind('/')); }

int FloorOf(const std::string& room) {
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

// A room that holds more is several rooms.
TEST(Laws, NoRoomIsCrowded) {
  std::map<std::string, int> files;
  for (const char* folder : {"batch", "bench", "cases", "desktop", "dialogs", "runtime", "script",
                             "shell", "structures", "tariff", "tests", "utilities"})
    for (const std::string& file : FilesOf(folder, IsSource)) ++files[RoomOf(file)];
  for (const auto& [room, count] : files) EXPECT_LE(count, 30) << room;
}

TEST(Laws, OnlyTheDesktopIncludesQt) {
  std::vector<std::string> sources = LogicSources();
  for (const char* folder : {"tests/unit", "tests/fuzz", "tests/faults"})
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

// The files that the commands which are there read and write.
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

// Texts of message boxes as the sources write them: adjacent literals joined, escapes as they are,
// which are those of scripts too.
Names BoxTexts() {
  const std::string literal = "\"(?:[^\"\\\\]|\\\\.)*\"";
  const std::string literals = "((?:" + literal + "\\s*)+)";
  Names texts;
  for (const std::string& file : LogicSources()) {
    if (RoomOf(file) == "script" || RoomOf(file) == "batch") continue;
    std::string source = kRoot.Read(file);
    for (const std::string& pattern :
         {"Avviso\\(\\s*" + literals, literals + ",\\s*MessageBox::Icon"})
      for (const std::string& found : Found(source, pattern.c_str())) {
        std::string joined = std::regex_replace(found, std::regex("\"\\s*\""), "");
        joined = joined.substr(1, joined.rfind('"') - 1);
        if (!joined.empty()) texts.insert(joined);
      }
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
  const std::string scripts = AllScripts();
  const std::vector<std::string> all = CommandsOf(BuildMenu());
  Names missing, commands(all.begin(), all.end()), forms;
  const auto miss = [&](const std::string& kind, const Names& wanted, const Names& there) {
    for (const std::string& name : wanted)
      if (!there.contains(name)) missing.insert(kind + " " + name);
  };
  for (const std::string& name : CommandsNotYet(BuildMenu())) commands.erase(name);
  miss("command", commands, Found(scripts, "(?:^|\\n)menu (\\w+)"));
  // Only the names of forms have this shape; every one that a script meets must be among them.
  for (const std::string& file : LogicSources())
    forms.merge(Found(kRoot.Read(file), "\"(frm[A-Z]+_\\w+)\""));
  const Names met = Found(scripts, "(?:^|\\n)dialog (\\w+)");
  miss("form", forms, met);
  miss("form without a name of its own", met, forms);
  miss("file", DataFiles(), Found(scripts, "(?:^|\\n)compare ([\\w.]+)"));
  Names told;
  for (const std::string& line : Found(scripts, "(?:^|\\n)(?:message|failure) ([^\\n]*)"))
    told.merge(Found(line, "\"((?:[^\"\\\\]|\\\\.)*)\""));
  for (const std::string& text : BoxTexts())
    if (!IsTold(text, told)) missing.insert("message " + text);
  return missing;
}

TEST(Laws, NothingGoesWithoutAScript) {
  ASSERT_GT(BoxTexts().size(), 8U);
  ExpectListed(NotCovered(), "tests/unit/not_yet_covered.txt");
}

TEST(Laws, CommandsNotYetThereAreListed) {
  Names commands;
  for (const std::string& name : CommandsNotYet(BuildMenu())) commands.insert(name);
  ExpectListed(commands, "docs/not-yet.txt");
}

}  // namespace
}  // namespace orm
