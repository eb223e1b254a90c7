#include "runtime/file_calls.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <memory>
#include <utility>

#include "runtime/failure.h"

namespace orm {

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
    case ENAMETOOLONG:
      return "Il nome o il percorso è troppo lungo.";
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

void FailAt(std::string_view name, int error) {
  throw RuntimeFailure(ReasonOf(error)).AtFile(std::string(name));
}

Descriptor::~Descriptor() {
  if (fd_ >= 0) ::close(fd_);
}

int Descriptor::Close() { return ::close(std::exchange(fd_, -1)); }

int OpenRetrying(const std::string& path, int flags, mode_t mode) {
  int fd = -1;
  do fd = ::open(path.c_str(), flags | O_CLOEXEC, mode);
  while (fd < 0 && errno == EINTR);
  return fd;
}

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

namespace {

void RefuseLinkToNowhere(const std::string& path, std::string_view name) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0) {
    if (errno != ENOENT && errno != ENOTDIR) FailAt(name, errno);
    return;
  }
  char leads[PATH_MAX];
  const ssize_t length = ::readlink(path.c_str(), leads, sizeof leads);
  if (length < 0) return;  // it has come in the meantime, or is no link
  throw RuntimeFailure("Il file è un collegamento a \"" +
                       std::string(leads, static_cast<std::size_t>(length)) +
                       "\", che non si trova.")
      .AtFile(std::string(name));
}

// A folder that was deleted while a program works in it can still be looked at, but no name leads
// to it any more.
void RefuseGoneFolder(const std::string& folder, std::string_view name) {
  struct stat status {};
  const int error = ::stat(folder.c_str(), &status) == 0 ? 0 : errno;
  if (error == 0 && status.st_nlink > 0) return;
  if (error != 0 && error != ENOENT && error != ENOTDIR) FailAt(name, error);
  throw RuntimeFailure(folder == "." ? "La cartella di lavoro non c'è più."
                                     : "La cartella \"" + folder + "\" non c'è.")
      .AtFile(std::string(name));
}

}  // namespace

std::optional<struct stat> Look(const std::string& folder, std::string_view name) {
  const std::string path = folder + "/" + std::string(name);
  struct stat status {};
  if (::stat(path.c_str(), &status) == 0) return status;
  if (errno != ENOENT && errno != ENOTDIR) FailAt(name, errno);
  RefuseLinkToNowhere(path, name);
  RefuseGoneFolder(folder, name);
  return std::nullopt;
}

void RefuseWhatIsNoFile(const struct stat& status, std::string_view name) {
  if (S_ISDIR(status.st_mode)) FailAt(name, EISDIR);
  if (!S_ISREG(status.st_mode))
    throw RuntimeFailure("Non è un file di dati.").AtFile(std::string(name));
}

std::string ReadWhole(const std::string& folder, std::string_view name, std::size_t most) {
  // A name that is a pipe or a device must not hang the program: it opens without waiting and is
  // refused as no regular file.
  const Descriptor file(OpenRetrying(folder + "/" + std::string(name), O_RDONLY | O_NONBLOCK));
  if (!file.IsOpen()) {
    const int error = errno;
    if (error == ENOENT) Look(folder, name);  // says more of a link, or of the folder
    FailAt(name, error);
  }
  struct stat status {};
  if (::fstat(file.Get(), &status) != 0) FailAt(name, errno);
  RefuseWhatIsNoFile(status, name);
  if (static_cast<std::size_t>(status.st_size) > most) FailAt(name, EFBIG);
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t got = 0;
  while (got < bytes.size()) {
    const ssize_t n = ::read(file.Get(), bytes.data() + got, bytes.size() - got);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) FailAt(name, errno);
    if (n == 0) break;
    got += static_cast<std::size_t>(n);
  }
  bytes.resize(got);
  return bytes;
}

std::int64_t ChangeOf(const struct stat& status) {
  return status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec;
}

int ListFolder(const std::string& folder, std::vector<std::string>& names) {
  const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), ::closedir);
  if (open == nullptr) return errno;
  for (;;) {
    errno = 0;
    const dirent* entry = ::readdir(open.get());
    if (entry == nullptr) return errno;
    names.emplace_back(entry->d_name);
    if (names.back() == "." || names.back() == "..") names.pop_back();
  }
}

}  // namespace orm
