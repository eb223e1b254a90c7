// The system's calls on files, with their errors in Italian: what reading, replacing and keeping
// files share.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orm {

std::string ReasonOf(int error);

// Throws the RuntimeFailure of an error at a file.
[[noreturn]] void FailAt(std::string_view name, int error);

// An open file that is closed at the end of its block.
class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor();
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Get() const { return fd_; }
  bool IsOpen() const { return fd_ >= 0; }
  int Close();

 private:
  int fd_;
};

int OpenRetrying(const std::string& path, int flags, mode_t mode = 0);

// Writes all bytes; 0 or the error.
int WriteAll(int fd, std::string_view bytes);

// What `name` in `folder` stands for, nothing where there is nothing. A path that cannot be looked
// at, a link that leads nowhere and a folder that has gone are RuntimeFailures: taken for an absent
// file, they would be replaced by the file of a new installation.
std::optional<struct stat> Look(const std::string& folder, std::string_view name);

// Refuses what is no regular file.
void RefuseWhatIsNoFile(const struct stat& status, std::string_view name);

// All bytes of a file of at most `most`. One that is missing, unreadable, larger or no regular file
// (a pipe must not hang the program) is a RuntimeFailure that names it.
std::string ReadWhole(const std::string& folder, std::string_view name, std::size_t most);

inline constexpr std::int64_t kNanoseconds = 1'000'000'000;  // of a second
// When a file was changed, in nanoseconds since 1970.
std::int64_t ChangeOf(const struct stat& status);

// The names in a folder but "." and "..", in no order; 0 or the error.
int ListFolder(const std::string& folder, std::vector<std::string>& names);

}  // namespace orm
