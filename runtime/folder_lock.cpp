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

}  // namespace

FolderLock::FolderLock(const WorkFolder& folder)
    : descriptor_(OpenRetrying(folder.Path(), O_RDONLY | O_DIRECTORY)) {
  const bool locked = descriptor_ >= 0 && ::flock(descriptor_, LOCK_EX | LOCK_NB) == 0;
  held_ = descriptor_ < 0 || locked || errno != EWOULDBLOCK;
  certain_ = locked && !IsOfTheNetwork(descriptor_);
  if (!locked) return;
  ClearLeftovers(folder.Path());
  ClearLeftovers(folder.PathOf(kStorico));
}

FolderLock::~FolderLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace orm
