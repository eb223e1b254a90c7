// Files made to fill memory or time are shown or refused before anybody notices.
#include <QTemporaryDir>
#include <ctime>
#include <fstream>

#include "desktop/viewer/window.h"
#include "interchange/interchange.h"
#include "runtime/failure.h"
#include "shell/memo/form_memo.h"
#include "shell/shell.h"
#include "tests/desktop/test_player.h"

namespace orm {
namespace {

#if defined(__SANITIZE_ADDRESS__) || !defined(__OPTIMIZE__)
constexpr int kSlower = 10;
#else
constexpr int kSlower = 1;
#endif

std::string Many(int times, const std::string& what) {
  std::string text;
  for (int i = 0; i < times; ++i) text += what;
  return text;
}

long ResidentMegabytes() {
  std::ifstream status("/proc/self/statm");
  long pages = 0, resident = 0;
  status >> pages >> resident;
  return resident / 256;
}

TEST(Bombs, AreShownOrRefusedWithinTwoSecondsAnd500Megabytes) {
  const QTemporaryDir place;
  const WorkFolder folder(place.path().toStdString());
  TestPlayer player;
  RunState run(player, folder);
  long resident = 0;
  player.onForm = [&](FormDialog&) {
    QTest::qWait(50);
    resident = ResidentMegabytes();
  };
  const std::pair<std::string, std::string> bombs[] = {
      {"RIGA.DOC", std::string(8'000'000, 'x')},
      {"RIGHE_LUNGHE.DOC", Many(790, std::string(9'999, 'x') + "\n")},
      {"FACCINE.DOC", Many(790, Many(392, "👨‍👩‍👧‍👦") + "\r\n")},
      {"RITORNI.DOC", std::string(3'000'000, '\r')},
      {"SEGNI.DOC", Many(400, std::string(19'000, 'x') + "\r") + std::string(500, '\n')},
      {"SEZIONI.DOC",
       Many(90'000, std::string(30, '=') + " TOTALI " + std::string(30, '=') + "\n")},
      {"RIGHE.DOC", Many(99'000, std::string(78, 'x') + "\r\n")},
      {"RIGA.RTF", "{\\rtf1 " + std::string(8'000'000, 'x') + "}"},
      {"CAPOVERSI.RTF", "{\\rtf1 " + Many(24'000, "a\\par ") + "}"},
      {"LUNGO.RTF", "{\\rtf1 " + Many(199, std::string(4'990, 'x') + "\\par ") + "}"},
      {"ELENCO.json", "[" + Many(2'700'000, "{},") + "{}]"},
      {"UTENTE.DAG", Many(14, "\"" + std::string(590'000, 'x') + "\",")},
  };
  for (const auto& [name, bytes] : bombs) {
    std::ofstream(folder.PathOf(name)) << bytes;
    const std::clock_t begins = std::clock();
    const long before = ResidentMegabytes();
    try {
      if (name.ends_with(".DAG")) {
        Shell(player, folder).Choose("PERS_UTENTE");
      } else if (name.ends_with(".json")) {
        LeggiNotaDaJson(name, bytes);
      } else if (name.ends_with(".RTF")) {
        FrmGenVisualizzaRtf memo(run);
        memo.NomeFile = name;
        player.Show(memo);
      } else {
        ViewerWindow window;
        window.Open(folder.PathOf(name));
        window.show();
        QTest::qWait(50);
        resident = ResidentMegabytes();
      }
    } catch (const RuntimeFailure&) {
      resident = ResidentMegabytes();
    }
    const double seconds = static_cast<double>(std::clock() - begins) / CLOCKS_PER_SEC;
    EXPECT_LT(seconds, 2 * kSlower) << name;
    EXPECT_LT(resident - before, 500 * kSlower) << name;
    RecordProperty(name, std::to_string(seconds) + " s");
  }
}

}  // namespace
}  // namespace orm
