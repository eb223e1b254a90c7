#include "runtime/replace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <vector>

#include "runtime/file_calls.h"

namespace orm {
namespace {

constexpr std::string_view kBegins = ".orm2002-", kEnds = ".tmp";
constexpr int kMostTries = 100;
constexpr const char* kAccessList = "system.posix_acl_access";

// Access lists and a person's own attributes. Those of the system are the kernel's affair.
void CopyAttributes(const std::string& from, int to) {
  ssize_t length = ::listxattr(from.c_str(), nullptr, 0);
  std::string names(static_cast<std::size_t>(length > 0 ? length : 0), '\0');
  length = names.empty() ? 0 : ::listxattr(from.c_str(), names.data(), names.size());
  bool hasList = false;
  for (std::size_t at = 0; length > 0 && at < static_cast<std::size_t>(length);) {
    const std::string name(names.c_str() + at);
    at += name.size() + 1;
    if (name != kAccessList && !name.starts_with("user.")) continue;
    hasList |= name == kAccessList;
    const ssize_t size = ::getxattr(from.c_str(), name.c_str(), nullptr, 0);
    if (size < 0) continue;
    std::string value(static_cast<std::size_t>(size), '\0');
    if (::getxattr(from.c_str(), name.c_str(), value.data(), value.size()) == size)
      ::fsetxattr(to, name.c_str(), value.data(), value.size(), 0);
  }
  // One that the folder gives to every new file, but which the old one did not have.
  if (!hasList) ::fremovexattr(to, kAccessList);
}

// Group, lists and mode: a folder may be shared. None of it is worth a save: file systems of other
// systems refuse it, and have no rights of their own to keep.
void TakeRights(int fd, const std::string& like, const struct stat& old) {
  struct stat now {};
  if (::fstat(fd, &now) != 0) return;
  if ((now.st_uid != old.st_uid || now.st_gid != old.st_gid) &&
      ::fchown(fd, old.st_uid, old.st_gid) != 0 && now.st_gid != old.st_gid &&
      ::fchown(fd, static_cast<uid_t>(-1), old.st_gid) != 0) {
    // Not a member of that group: those rights stay which everybody had.
  }
  CopyAttributes(like, fd);
  const mode_t mode = old.st_mode & 0777;
  if (::fstat(fd, &now) == 0 && (now.st_mode & 0777) != mode && ::fchmod(fd, mode) != 0) return;
}

}  // namespace

// No two programs, and no two computers on one folder, are to find the same name at once; should
// they, the system gives it to one of them.
std::string FreshBesideName() {
  timespec now{};
  ::clock_gettime(CLOCK_REALTIME, &now);
  auto rest = static_cast<unsigned long long>(now.tv_sec) * 1'000'000'000ULL +
              static_cast<unsigned long long>(now.tv_nsec);
  rest ^= static_cast<unsigned long long>(::getpid()) << 40;
  std::string name(kBegins);
  for (; rest != 0; rest /= 36) name += "0123456789abcdefghijklmnopqrstuvwxyz"[rest % 36];
  return name + std::string(kEnds);
}

BesideFile::BesideFile(const std::string& folder, std::string_view bytes, Durability durability,
                       const std::string& like)
    : path_(folder + "/") {
  error_ = Write(bytes, durability, like);
}

int BesideFile::Write(std::string_view bytes, Durability durability, const std::string& like) {
  struct stat old {};
  const bool replaces = !like.empty() && ::stat(like.c_str(), &old) == 0;
  const std::string folder = std::move(path_);
  path_.clear();
  int fd = -1;
  for (int tries = 0; fd < 0 && tries < kMostTries; ++tries) {
    const std::string path = folder + FreshBesideName();
    fd = OpenRetrying(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW,
                      replaces ? old.st_mode & 0777 : 0666);
    if (fd >= 0) path_ = path;
    if (fd < 0 && errno != EEXIST) return errno;
  }
  if (fd < 0) return EEXIST;
  Descriptor file(fd);
  if (replaces) TakeRights(fd, like, old);
  if (const int error = WriteAll(fd, bytes)) return error;
  if (durability == Durability::Flushed && ::fsync(fd) != 0) return errno;
  struct stat status {};
  if (::fstat(fd, &status) != 0) return errno;
  if (status.st_size != static_cast<off_t>(bytes.size())) return EIO;
  return file.Close() == 0 ? 0 : errno;
}

BesideFile::~BesideFile() {
  if (!path_.empty()) ::unlink(path_.c_str());
}

int BesideFile::MoveTo(const std::string& target) {
  if (::rename(path_.c_str(), target.c_str()) != 0) return errno;
  path_.clear();
  return 0;
}

bool IsBesideName(std::string_view name) {
  return name.starts_with(kBegins) && name.ends_with(kEnds);
}

void ClearLeftovers(const std::string& folder) {
  std::vector<std::string> names;
  if (ListFolder(folder, names) != 0) return;
  for (const std::string& name : names) {
    struct stat status {};
    const std::string path = folder + "/" + name;
    if (IsBesideName(name) && ::lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
        status.st_mtime < std::time(nullptr) - kLongestSave)
      ::unlink(path.c_str());
  }
}

}  // namespace orm
