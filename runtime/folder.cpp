#include "runtime/folder.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <memory>
#include <optional>
#include <utility>

#include "runtime/failure.h"

namespace orm {
namespace {

std::string ReasonOf(int error) {
  switch (error) {
    case ENOENT:
      return "Il file non esiste.";
    case EACCES:
    case EPERM:
      return "Non si ha il permesso di accedere al file o alla cartella di lavoro.";
    case EROFS:
      return "Il disco è protetto da scrittura.";
    case ENOSPC:
    case EDQUOT:
      return "Sul disco non c'è più spazio.";
    case EFBIG:
      return "Il file è troppo grande.";
    case EISDIR:
      return "Al posto del file c'è una cartella.";
    case EIO:
      return "Errore di lettura o scrittura del disco.";
    case ELOOP:
      return "Al posto del file c'è un collegamento che non porta a un file.";
    case EMFILE:
    case ENFILE:
      return "Troppi file aperti.";
    default:
      return "Errore nell'accesso al file.";
  }
}

[[noreturn]] void Fail(std::string_view name, int error) {
  throw RuntimeFailure(ReasonOf(error)).AtFile(std::string(name));
}

// An open file that is closed at the end of its block.
class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int Get() const { return fd_; }
  bool IsOpen() const { return fd_ >= 0; }
  int Close() { return ::close(std::exchange(fd_, -1)); }

 private:
  int fd_;
};

int OpenRetrying(const char* path, int flags, mode_t mode = 0) {
  int fd = -1;
  do fd = ::open(path, flags | O_CLOEXEC, mode);
  while (fd < 0 && errno == EINTR);
  return fd;
}

// Writes all bytes; returns 0 or the error.
int WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t n = ::write(fd, bytes.data(), bytes.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    if (n == 0) return EIO;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return 0;
}

// What stands under the path, nothing where there is nothing. A path that cannot be looked at is a
// failure: taken for an absent file, it would be replaced by the file of a new installation.
std::optional<struct stat> Look(const std::string& path, std::string_view name) {
  struct stat status {};
  if (::stat(path.c_str(), &status) == 0) return status;
  if (errno != ENOENT && errno != ENOTDIR) Fail(name, errno);
  return std::nullopt;
}

// `mode`: the rights of the file to be replaced, which the new one keeps: a folder may be shared.
int WriteWhole(const std::string& path, std::string_view bytes, Durability durability,
               std::optional<mode_t> mode) {
  Descriptor file(OpenRetrying(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW, 0666));
  if (!file.IsOpen()) return errno;
  if (mode && ::fchmod(file.Get(), *mode) != 0) return errno;
  if (const int error = WriteAll(file.Get(), bytes)) return error;
  if (durability == Durability::Flushed && ::fsync(file.Get()) != 0) return errno;
  struct stat status {};
  if (::fstat(file.Get(), &status) != 0) return errno;
  if (status.st_size != static_cast<off_t>(bytes.size())) return EIO;
  return file.Close() == 0 ? 0 : errno;
}

}  // namespace

WorkFolder::WorkFolder(std::string path) : path_(std::move(path)) {}

std::string WorkFolder::PathOf(std::string_view name) const {
  return path_ + "/" + std::string(name);
}

bool WorkFolder::Exists(std::string_view name) const {
  return !name.empty() && Look(PathOf(name), name).has_value();
}

std::vector<std::string> WorkFolder::Names() const {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(path_.c_str()), ::closedir);
  if (folder == nullptr) Fail(path_, errno);
  for (;;) {
    errno = 0;
    const dirent* entry = ::readdir(folder.get());
    if (entry == nullptr) break;
    names.emplace_back(entry->d_name);
  }
  if (errno != 0) Fail(path_, errno);
  std::erase_if(names, [](const std::string& name) { return name == "." || name == ".."; });
  std::sort(names.begin(), names.end());
  return names;
}

std::string WorkFolder::Read(std::string_view name) const {
  // A name that is a pipe or a device must not hang the program: it opens without waiting and is
  // refused as no regular file.
  const Descriptor file(OpenRetrying(PathOf(name).c_str(), O_RDONLY | O_NONBLOCK));
  if (!file.IsOpen()) Fail(name, errno);
  struct stat status {};
  if (::fstat(file.Get(), &status) != 0) Fail(name, errno);
  if (S_ISDIR(status.st_mode)) Fail(name, EISDIR);
  if (!S_ISREG(status.st_mode))
    throw RuntimeFailure("Non è un file di dati.").AtFile(std::string(name));
  if (static_cast<std::size_t>(status.st_size) > kLargestFile) Fail(name, EFBIG);
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t got = 0;
  while (got < bytes.size()) {
    const ssize_t n = ::read(file.Get(), bytes.data() + got, bytes.size() - got);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) Fail(name, errno);
    if (n == 0) break;
    got += static_cast<std::size_t>(n);
  }
  bytes.resize(got);
  return bytes;
}

void WorkFolder::Replace(std::string_view name, std::string_view bytes,
                         Durability durability) const {
  const std::string target = PathOf(name);
  // One name beside each file: a leftover of a killed program is overwritten by the next save.
  const std::string beside = target + ".tmp";

  std::optional<mode_t> mode;
  if (const auto old = Look(target, name)) {
    if (S_ISDIR(old->st_mode)) Fail(name, EISDIR);
    if (::access(target.c_str(), W_OK) != 0) Fail(name, errno);
    mode = old->st_mode & 0777;
  }
  // Opened before anything is written, so that its own errors come while the old file is there.
  const bool flushed = durability == Durability::Flushed;
  const Descriptor folder(flushed ? OpenRetrying(path_.c_str(), O_RDONLY | O_DIRECTORY) : -1);
  if (flushed && !folder.IsOpen()) Fail(name, errno);

  int error = WriteWhole(beside, bytes, durability, mode);
  if (error == 0 && ::rename(beside.c_str(), target.c_str()) != 0) error = errno;
  if (error != 0) {
    ::unlink(beside.c_str());
    Fail(name, error);
  }
  // The new contents are in place; without this flush a power cut could bring the old ones back,
  // whole too. A file system that cannot flush a folder (EINVAL) does without.
  if (flushed && ::fsync(folder.Get()) != 0 && errno != EINVAL)
    throw RuntimeFailure("I dati sono scritti, ma il disco non ne conferma la registrazione. " +
                         ReasonOf(errno))
        .AtFile(std::string(name));
}

void WorkFolder::Remove(std::string_view name) const {
  if (::unlink(PathOf(name).c_str()) != 0 && errno != ENOENT) Fail(name, errno);
}

void TellFileSizeErrors() { std::signal(SIGXFSZ, SIG_IGN); }

FolderLock::FolderLock(const WorkFolder& folder)
    : descriptor_(OpenRetrying(folder.Path().c_str(), O_RDONLY | O_DIRECTORY)) {
  held_ = descriptor_ < 0 || ::flock(descriptor_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

FolderLock::~FolderLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace orm
