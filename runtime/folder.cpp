#include "runtime/folder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <utility>

#include "runtime/failure.h"
#include "runtime/file_calls.h"
#include "runtime/generations.h"
#include "runtime/replace.h"

namespace orm {
namespace {

// The file that a name leads to: through links, which stay.
std::string Followed(const std::string& path, std::string_view name) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0) FailAt(name, errno);
  if (!S_ISLNK(status.st_mode)) return path;
  char whole[PATH_MAX];
  if (::realpath(path.c_str(), whole) == nullptr) FailAt(name, errno);
  return whole;
}

std::string FolderOf(const std::string& path) {
  return path.substr(0, std::max<std::size_t>(path.rfind('/'), 1));
}

}  // namespace

WorkFolder::WorkFolder(std::string path)
    : path_(std::move(path)), untold_(std::make_shared<Untold>()) {}

std::string WorkFolder::PathOf(std::string_view name) const {
  return path_ + "/" + std::string(name);
}

bool WorkFolder::Exists(std::string_view name) const {
  return !name.empty() && Look(path_, name).has_value();
}

std::vector<std::string> WorkFolder::Names() const {
  std::vector<std::string> names;
  if (const int error = ListFolder(path_, names)) FailAt(path_, error);
  std::erase_if(names, [this](const std::string& name) {
    struct stat status {};
    return IsBesideName(name) ||
           (::stat(PathOf(name).c_str(), &status) == 0 && S_ISDIR(status.st_mode));
  });
  std::sort(names.begin(), names.end());
  return names;
}

std::string WorkFolder::Read(std::string_view name) const {
  return ReadWhole(path_, name, kLargestFile);
}

void WorkFolder::Replace(std::string_view name, std::string_view bytes,
                         Durability durability) const {
  if (HaGenerazioni(name) && bytes.size() > kLargestFile) FailAt(name, EFBIG);
  std::string target = PathOf(name);
  const auto old = Look(path_, name);
  if (old) {
    RefuseWhatIsNoFile(*old, name);
    if (::access(target.c_str(), W_OK) != 0) FailAt(name, errno);
    target = Followed(target, name);
  }
  // Opened before anything is written, so that its own errors come while the old file is there.
  const bool flushed = durability == Durability::Flushed;
  const std::string where = FolderOf(target);
  const Descriptor folder(flushed ? OpenRetrying(where, O_RDONLY | O_DIRECTORY) : -1);
  if (flushed && !folder.IsOpen()) FailAt(name, errno);

  BesideFile beside(where, bytes, durability, old ? target : "");
  if (beside.Error() != 0) FailAt(name, beside.Error());
  // Only now, so that it is not the old contents that take the last of the disk.
  if (old && HaGenerazioni(name)) Keep(name, target, bytes, durability);
  if (const int error = beside.MoveTo(target)) FailAt(name, error);
  // The new contents are in place; without this flush a power cut could bring the old ones back,
  // whole too. A file system that cannot flush a folder (EINVAL) does without.
  if (flushed && ::fsync(folder.Get()) != 0 && errno != EINVAL)
    throw RuntimeFailure("I dati sono scritti, ma il disco non ne conferma la registrazione. " +
                         ReasonOf(errno))
        .AtFile(std::string(name));
}

// What cannot be kept stops no save; a person is told once.
void WorkFolder::Keep(std::string_view name, const std::string& target, std::string_view bytes,
                      Durability durability) const {
  std::optional<std::string> reason;
  try {
    const std::string contents = Read(name);
    if (contents != bytes) reason = ConservaGenerazione(*this, name, target, contents, durability);
  } catch (const RuntimeFailure& failure) {
    reason = failure.Reason();
  }
  if (reason && !std::exchange(untold_->known, true))
    untold_->warning = std::string(name) + " : " + *reason;
}

std::string WorkFolder::TakeWarning() const { return std::exchange(untold_->warning, {}); }

void WorkFolder::Remove(std::string_view name) const {
  if (::unlink(PathOf(name).c_str()) != 0 && errno != ENOENT) FailAt(name, errno);
}

void TellFileSizeErrors() { std::signal(SIGXFSZ, SIG_IGN); }

}  // namespace orm
