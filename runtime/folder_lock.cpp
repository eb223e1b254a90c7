#include "runtime/folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "runtime/file_calls.h"
#include "runtime/generations.h"
#include "runtime/replace.h"

namespace orm {
namespace {

// File systems whose folders other computers share, by the numbers that statfs gives them: NFS,
// SMB 1, CIFS, SMB 2, AFS, Coda, Ceph, and those that a program of the user's provides (SSH).
constexpr std::array<std::uint32_t, 8> kOfTheNetwork = {
    0x6969, 0x517B, 0xFF534D42, 0xFE534D42, 0x5346414F, 0x73757245, 0x00C36400, 0x65735546};

bool IsOfTheNetwork(int folder) {
  struct statfs where {};
  if (::fstatfs(folder, &where) != 0) return false;
  return std::count(kOfTheNetwork.begin(), kOfTheNetwork.end(),
                    static_cast<std::uint32_t>(where.f_type)) > 0;
}

// The desk of jobs looks whether a folder is held by taking it for an instant: who finds it held
// tries again before believing it.
constexpr int kTries = 3;
constexpr useconds_t kBetween = 20'000;  // microseconds

bool Lock(int folder) {
  for (int tries = 1; ::flock(folder, LOCK_EX | LOCK_NB) != 0; ++tries) {
    if (errno != EWOULDBLOCK || tries == kTries) return false;
    ::usleep(kBetween);
  }
  return true;
}

}  // namespace

FolderLock::FolderLock(const WorkFolder& folder)
    : descriptor_(OpenRetrying(folder.Path(), O_RDONLY | O_DIRECTORY)) {
  const bool locked = descriptor_ >= 0 && Lock(descriptor_);
  held_ = descriptor_ < 0 || locked || errno != EWOULDBLOCK;
  certain_ = locked && !IsOfTheNetwork(descriptor_);
  if (!locked) return;
  ClearLeftovers(folder.Path());
  ClearLeftovers(folder.PathOf(kStorico));
}

bool FolderIsHeld(const std::string& folder) {
  const Descriptor open(OpenRetrying(folder, O_RDONLY | O_DIRECTORY));
  return open.IsOpen() && ::flock(open.Get(), LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

FolderLock::~FolderLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace orm
