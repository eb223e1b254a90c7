// A root of jobs made of the sample notes, for the tests of jobs.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "jobs/job_commands.h"
#include "runtime/failure.h"
#include "tests/temporary_folder.h"

namespace orm {

namespace fs = std::filesystem;

class JobsTest : public ::testing::Test {
 protected:
  std::string PathOf(const std::string& job) const { return root_ + "/" + job; }
  WorkFolder Folder(const std::string& job) const { return WorkFolder(PathOf(job)); }
  void Lay(const std::string& file, const std::string& bytes) const {
    fs::create_directories(fs::path(root_ + "/" + file).parent_path());
    std::ofstream(root_ + "/" + file, std::ios::binary) << bytes;
  }
  // Files of data/sample.
  void LaySamples(const std::string& job, const std::vector<std::string>& files) const {
    for (const std::string& file : files) Lay(job + "/" + file, kSample.Read(file));
  }
  static std::string ReasonOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const RuntimeFailure& failure) {
      return failure.Reason();
    }
    return {};
  }
  ParcellaDelLavoro NoteOf(const std::string& job, std::size_t which = 0) const {
    return LeggiLavoro(root_, job).parcelle.at(which);
  }

  TemporaryFolder place_;
  const std::string root_ = place_.Path() + "/Lavori";
  const WorkFolder kSample{ORM_SOURCE_DIR "/data/sample"};
};

}  // namespace orm
