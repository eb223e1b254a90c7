// A job as a ZIP archive, and archives that nobody should have made.
#include <algorithm>

#include "jobs/job_zip.h"
#include "tests/unit/jobs/job_folder.h"

namespace orm {
namespace {

using ArchiveTest = JobsTest;

TEST_F(ArchiveTest, AJobComesBackWithItsVersionsAndSubfolders) {
  LaySamples("Rossi à", {"INT_PPE.DAP", "INP_PPE.DAP"});
  Lay("Rossi à/storico/INP_PPE.2001-01-01_080000.DAP", "x"), Lay("Rossi à/foto/1.jpg", "");
  const auto old = fs::file_time_type::clock::now() - std::chrono::hours(100);
  fs::last_write_time(PathOf("Rossi à/INP_PPE.DAP"), old);
  const std::string zip = place_.Path() + "/Rossi.zip";
  ArchiviaLavoro(PathOf("Rossi à"), zip);
  EXPECT_EQ(NomeNelloZip(zip), "Rossi à");
  RiprendiLavoro(zip, root_, "Ripreso");
  const auto before = LeggiAlbero(PathOf("Rossi à"), false),
             after = LeggiAlbero(PathOf("Ripreso"), false);
  ASSERT_EQ(after.size(), 4U);
  for (std::size_t i = 0; i < after.size(); ++i) {
    EXPECT_EQ(after[i].percorso, before[i].percorso);
    EXPECT_EQ(after[i].contenuto, before[i].contenuto);
  }
  const auto apart = fs::last_write_time(PathOf("Ripreso/INP_PPE.DAP")) - old;
  EXPECT_LE(std::abs(std::chrono::duration_cast<std::chrono::seconds>(apart).count()), 2);
  EXPECT_NE(ReasonOf([&] { RiprendiLavoro(zip, root_, "Ripreso"); }).find("già"),
            std::string::npos);
  fs::create_directory(PathOf("Vuoto"));
  ArchiviaLavoro(PathOf("Vuoto"), zip);
  RiprendiLavoro(zip, root_, "Vuoto anche lui");
  EXPECT_TRUE(Folder("Vuoto anche lui").Names().empty());
}

// Bytes at an offset within the entry of the central directory that tells of `name`.
std::string Forged(std::string zip, const std::string& name, std::size_t offset,
                   const std::string& bytes) {
  const auto named = zip.rfind(name);
  return zip.replace(zip.rfind("PK\x01\x02", named) + offset, bytes.size(), bytes);
}

TEST_F(ArchiveTest, HostileArchivesAreRefusedWithAWord) {
  const std::string good = FaiZip("Job", {{"A.DAP", std::string(1000, 'a'), 0}});
  const std::string unix("\x14\x03", 2);
  const std::pair<std::string, const char*> cases[] = {
      {FaiZip("Job", {{"../A.DAP", "x", 0}}), "esce"},
      {FaiZip("..", {{"A.DAP", "x", 0}}), "esce"},
      {FaiZip("Job", {{"/etc/A.DAP", "x", 0}}), "esce"},
      {FaiZip("", {{"A.DAP", "x", 0}}), "esce"},
      {FaiZip("Job", {{"a\\b.DAP", "x", 0}}), "nome"},
      {FaiZip("C:", {{"b.DAP", "x", 0}}), "nome"},
      {FaiZip("Job", {{"A.DAP", "x", 0}, {"a.dap", "y", 0}}), "due volte"},
      {Forged(Forged(good, "A.DAP", 4, unix), "A.DAP", 38, std::string("\0\0\xFF\xA1", 4)),
       "collegamento"},
      {Forged(good, "A.DAP", 24, std::string("\0\0\0\x7F", 4)), "troppo grande"},
      {Forged(good, "A.DAP", 24, std::string("\x01\0\0\0", 4)), "danneggiato"},
      {Forged(good, "A.DAP", 8, std::string("\x01\0", 2)), "parola d'ordine"},
      {Forged(good, "A.DAP", 16, "abcd"), "danneggiato"},
      {"non è uno ZIP", "danneggiato"},
      {"", "danneggiato"},
  };
  ASSERT_EQ(LeggiZip(good).files.size(), 1U);
  EXPECT_TRUE(LeggiZip(FaiZip("Job", {{".orm2002-bozze.bozza", "x", 0}})).files.empty());
  for (const auto& [bytes, word] : cases) {
    const std::string reason = ReasonOf([&archive = bytes] { LeggiZip(archive); });
    EXPECT_NE(reason.find(word), std::string::npos) << word << " : " << reason;
  }
  for (std::size_t length = 0; length < good.size(); ++length)
    EXPECT_NE(ReasonOf([&] { LeggiZip(good.substr(0, length)); }), "") << length;
  // What goes wrong on the way leaves nothing.
  Lay("x", "");
  std::ofstream(place_.Path() + "/a.zip")
      << FaiZip("Job", {{"A.DAP", "x", 0}, {"A.DAP/B.DAP", "y", 0}});
  EXPECT_NE(ReasonOf([&] { RiprendiLavoro(place_.Path() + "/a.zip", root_, "Job"); }), "");
  EXPECT_EQ(std::distance(fs::directory_iterator(root_), {}), 1);
}

}  // namespace
}  // namespace orm
