// What stands beside the data: the texts that the viewer opens, and the generations of files.
#include <filesystem>
#include <fstream>

#include "desktop/viewer/file.h"
#include "runtime/generations.h"
#include "shell/saved_drafts.h"
#include "structures/structural_report.h"
#include "tests/fuzz/fuzzer.h"
#include "tests/unit/fake_player.h"

namespace orm::fuzz {
namespace {

// Any file is a text that comes back byte for byte, or a failure.
void Visore(std::string_view bytes) {
  try {
    const DecodedText read = DecodeText(bytes);
    // The window shows what would not come back, and does not save it.
    if (FirstLackingCharacter(read.text, read.format)) return;
    const std::string saved = EncodeText(read.text, read.format);
    CheckOpensAgain(saved, read.format);
    const DecodedText again = DecodeText(saved);
    Require(EncodeText(again.text, again.format) == saved, "il testo salvato si riapre uguale");
  } catch (const RuntimeFailure& failure) {
    Require(!failure.Reason().empty(), "il messaggio ha una ragione");
  }
}

// `storico` with files of any names: what is no generation stays, and a save adds exactly one.
void NomiDelloStorico(std::string_view input) {
  const WorkFolder storico(Place().PathOf(kStorico));
  std::filesystem::remove_all(storico.Path());
  std::filesystem::create_directory(storico.Path());
  constexpr int kMostNames = 30;
  for (std::size_t at = 0, names = 0; at < input.size() && names < kMostNames;) {
    const std::string name(input.substr(at, input.find('\n', at) - at));
    at += name.size() + 1;
    if (name.empty() || name.size() > 200 || name == "." || name == ".." ||
        name.find_first_of(std::string_view("/\0", 2)) != name.npos ||
        name.find("-99") != name.npos || storico.Exists(name))
      continue;
    std::ofstream(storico.PathOf(name)) << name;
    ++names;
  }
  const std::size_t others = storico.Names().size() - Generazioni(Place()).size();
  const std::size_t before = Generazioni(Place(), "A.DAP").size();
  std::filesystem::remove(Place().PathOf("A.DAP"));
  Put("A.DAP", "prima");
  Put("A.DAP", "dopo");
  const std::vector<Generazione> after = Generazioni(Place(), "A.DAP");
  Require(after.size() == std::min<std::size_t>(before + 1, 20), "una generazione in più");
  Require(LeggiGenerazione(Place(), after.front()) == "prima", "l'ultima è quella di prima");
  Require(storico.Names().size() == Generazioni(Place()).size() + others,
          "i file di altri restano");
}

// A form with a control of each kind takes whatever a file of drafts holds.
struct Foglio : Form {
  Foglio() : Form("f", "F") { SetContent(Column({a, b, c, d, e, f, g})); }
  TestoBox a{*this, "a", ""};
  InterBox b{*this, "b", ""};
  FerriBox c{*this, "c", ""};
  CheckBox d{*this, "d", "D"};
  ComboBox e{*this, "e", "", {"uno", "due"}};
  DatePicker f{*this, "f", ""};
  Slider g{*this, "g", "", 0, 9};
};

void Bozze(std::string_view bytes) {
  Drafts::All read;
  try {
    read = ReadDrafts(bytes);
  } catch (const RuntimeFailure& failure) {
    return Require(!failure.Reason().empty(), "il messaggio ha una ragione");
  }
  // A number has the 15 digits of every file.
  const std::string saved = DraftsText(read);
  Require(DraftsText(ReadDrafts(saved)) == saved, "le bozze salvate si rileggono uguali");
  for (const auto& [key, draft] : read) {
    Foglio foglio;
    draft.PutInto(foglio);
  }
}

// Whatever stands in a report that grows, the next element goes behind it and nothing before it
// changes.
void Relazione(std::string_view bytes) {
  struct Starts : FakePlayer {
    void StartProgram(const std::string&, const std::string&) override {}
  } player;
  RunState run(player, Place());
  RelazioneStrutturale report(run, "OUT_F.DOC");
  const auto print = [](ReportPrinter& text, bool, int) { text.Line("elemento"); };
  report.Stampa(print);
  Put("OUT_F.DOC", bytes);
  report.Stampa(print);
  const std::string now = Place().Read("OUT_F.DOC");
  Require(now.starts_with(bytes) && now.size() > bytes.size(), "la relazione cresce");
}

}  // namespace

Formats SavedFormats() {
  return {{"bozze", Bozze},
          {"generazioni", NomiDelloStorico},
          {"relazione", Relazione},
          {"visore", Visore}};
}

}  // namespace orm::fuzz
