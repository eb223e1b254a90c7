// What a save replaces stays in `storico`; what a folder holds instead of files is refused.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>

#include "runtime/failure.h"
#include "runtime/generations.h"
#include "tests/temporary_folder.h"

namespace orm {
namespace {

namespace fs = std::filesystem;

class GenerationsTest : public ::testing::Test {
 protected:
  void Lay(const std::string& name, const std::string& bytes) const {
    fs::create_directory(path_ + "/storico");
    std::ofstream(path_ + "/" + name) << bytes;
  }
  // Times and contents, the newest first.
  std::vector<std::string> Contents(const std::string& name) const {
    std::vector<std::string> all;
    for (const Generazione& one : Generazioni(folder_, name))
      all.push_back(LeggiGenerazione(folder_, one));
    return all;
  }
  std::string ReasonOfReplace(const std::string& name) const {
    try {
      folder_.Replace(name, "nuovo");
    } catch (const RuntimeFailure& failure) {
      return failure.Reason();
    }
    return {};
  }
  TemporaryFolder place_;
  const std::string path_ = place_.Path();
  const WorkFolder folder_ = place_.Folder();
};

TEST_F(GenerationsTest, WhatIsReplacedStaysOnceAndComesBack) {
  for (const char* bytes : {"a", "b", "b", "c", "b", "d"}) folder_.Replace("INP_PPE.DAP", bytes);
  using Texts = std::vector<std::string>;
  EXPECT_EQ(Contents("INP_PPE.DAP"), (Texts{"b", "c", "a"}));
  RiportaGenerazione(folder_, Generazioni(folder_, "INP_PPE.DAP").back());
  EXPECT_EQ(folder_.Read("INP_PPE.DAP"), "a");
  EXPECT_EQ(Contents("INP_PPE.DAP"), (Texts{"d", "b", "c", "a"}));
  EXPECT_EQ(folder_.Names(), Texts{"INP_PPE.DAP"});
  for (const char* name : {"copia.pdf", "SOLAIO_P_Rossi.VER"})
    folder_.Replace(name, "1"), folder_.Replace(name, "2");
  EXPECT_EQ(Generazioni(folder_).size(), 5U);
  EXPECT_EQ(Contents("SOLAIO_P_Rossi.VER"), Texts{"1"});
}

// Twenty days with two saves each, and a person's own file among them.
TEST_F(GenerationsTest, TheFirstOfEachDayStaysLongest) {
  for (int day = 10; day < 30; ++day)
    for (const char* hour : {"08", "18"})
      Lay("storico/A.2001-01-" + std::to_string(day) + "_" + hour + "0000.DAP",
          std::to_string(day) + hour);
  Lay("storico/A.mio.DAP", "mio");
  Lay("A.DAP", "prima");
  folder_.Replace("A.DAP", "dopo");
  const std::vector<std::string> left = Contents("A.DAP");
  ASSERT_EQ(left.size(), 20U);
  EXPECT_EQ(left.front(), "prima");
  EXPECT_EQ(left[1], "2908");
  EXPECT_EQ(left.back(), "1108");
  EXPECT_TRUE(fs::exists(path_ + "/storico/A.mio.DAP"));
}

TEST_F(GenerationsTest, TheHeaviestFileGivesWay) {
  for (const char* day : {"01", "02", "03"})
    Lay(std::string("storico/MEMO.2001-01-") + day + "_080000.RTF",
        day + std::string(3 << 20, 'x'));
  Lay("storico/B.2001-01-01_080000.DAP", "b");
  Lay("A.DAP", "prima");
  folder_.Replace("A.DAP", "dopo");
  EXPECT_EQ(Generazioni(folder_, "MEMO.RTF").size(), 2U);
  EXPECT_EQ(Generazioni(folder_).size(), 4U);
}

TEST_F(GenerationsTest, WhatCannotBeKeptStopsNoSaveAndIsToldOnce) {
  Lay("A.DAP", "a");
  fs::remove(path_ + "/storico");
  fs::create_directory(path_ + "/altrove");
  fs::create_directory_symlink("altrove", path_ + "/storico");
  folder_.Replace("A.DAP", "b"), folder_.Replace("A.DAP", "c");
  EXPECT_EQ(folder_.Read("A.DAP"), "c");
  EXPECT_TRUE(fs::is_empty(path_ + "/altrove"));
  EXPECT_EQ(folder_.TakeWarning(), "A.DAP : Al posto della cartella \"storico\" c'è altro.");
  EXPECT_EQ(folder_.TakeWarning(), "");
}

TEST_F(GenerationsTest, LinksAreFollowedAndThoseToNowhereTold) {
  Lay("vero", "prima");
  fs::create_symlink("vero", path_ + "/UTENTE.DAG");
  fs::create_symlink("/orm2002/assente", path_ + "/CRITERI.PER");
  folder_.Replace("UTENTE.DAG", "dopo");
  EXPECT_TRUE(fs::is_symlink(path_ + "/UTENTE.DAG"));
  EXPECT_EQ(folder_.Read("vero"), "dopo");
  EXPECT_EQ(Contents("UTENTE.DAG"), std::vector<std::string>{"prima"});
  EXPECT_THROW((void)folder_.Exists("CRITERI.PER"), RuntimeFailure);
  EXPECT_EQ(ReasonOfReplace("CRITERI.PER"),
            "Il file è un collegamento a \"/orm2002/assente\", che non si trova.");
}

TEST_F(GenerationsTest, WhatIsNoFileIsNoTarget) {
  fs::create_directory(path_ + "/A.DAP");
  ASSERT_EQ(::mkfifo((path_ + "/B.DAP").c_str(), 0666), 0);
  fs::create_symlink("/dev/null", path_ + "/C.DAP");
  EXPECT_EQ(ReasonOfReplace("A.DAP"), "Al posto del file c'è una cartella.");
  EXPECT_EQ(ReasonOfReplace("B.DAP"), "Non è un file di dati.");
  EXPECT_EQ(ReasonOfReplace("C.DAP"), "Non è un file di dati.");
  const WorkFolder gone(path_ + "/assente");
  EXPECT_THROW((void)gone.Exists("A.DAP"), RuntimeFailure);
}

// A colleague's right stays on the file that has it, and the folder's own list comes to no file
// that had none.
TEST_F(GenerationsTest, AccessListsStayAsTheyWere) {
  struct Right {
    std::uint16_t whose, what;
    std::uint32_t id;
  };
  struct {
    std::uint32_t version = 2;
    std::array<Right, 5> rights{{{1, 6, 0}, {2, 6, 60'002}, {4, 4, 0}, {16, 6, 0}, {32, 0, 0}}};
  } const list;
  constexpr const char* kOfFile = "system.posix_acl_access";
  const auto length = [](const std::string& path) {
    return ::getxattr(path.c_str(), kOfFile, nullptr, 0);
  };
  Lay("A.DAP", "prima"), Lay("B.DAP", "prima");
  if (::setxattr((path_ + "/A.DAP").c_str(), kOfFile, &list, sizeof list, 0) != 0)
    GTEST_SKIP() << "the disk keeps no access lists";
  ASSERT_EQ(::setxattr(path_.c_str(), "system.posix_acl_default", &list, sizeof list, 0), 0);
  for (const char* name : {"A.DAP", "B.DAP", "C.DAP"}) folder_.Replace(name, "dopo");
  EXPECT_EQ(length(path_ + "/A.DAP"), static_cast<ssize_t>(sizeof list));
  EXPECT_EQ(length(path_ + "/B.DAP"), -1);
  EXPECT_EQ(length(path_ + "/C.DAP"), static_cast<ssize_t>(sizeof list));  // as any new file
}

}  // namespace
}  // namespace orm
