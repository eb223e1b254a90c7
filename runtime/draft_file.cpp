#include "runtime/draft_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "runtime/failure.h"
#include "runtime/file_calls.h"
#include "runtime/numbers.h"

namespace orm {
namespace {

namespace fs = std::filesystem;

constexpr int kMostDrafts = 9;  // about one thing

// The user's place for such files, by the custom of the platform; empty when there is none.
std::string OwnPlace() {
  const char* state = std::getenv("XDG_STATE_HOME");
  if (state != nullptr && *state == '/') return std::string(state) + "/orm2002";
  const char* home = std::getenv("HOME");
  return home != nullptr && *home == '/' ? std::string(home) + "/.local/state/orm2002" : "";
}

// A short name for a long path (FNV-1a).
std::string ShortName(std::string_view path) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : path) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  std::string name;
  for (; hash != 0; hash /= 36) name += "0123456789abcdefghijklmnopqrstuvwxyz"[hash % 36];
  return name;
}

enum class State { Absent, Left, InUse };

State StateOf(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::symlink_status(path, error);
  if (!fs::exists(status)) return State::Absent;
  if (!fs::is_regular_file(status)) return State::InUse;  // a link could lead anywhere
  const Descriptor file(OpenRetrying(path, O_RDONLY | O_NONBLOCK | O_NOFOLLOW));
  const bool ours =
      file.IsOpen() && (::flock(file.Get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK);
  return ours ? State::Left : State::InUse;
}

}  // namespace

DraftFile::DraftFile(WorkFolder folder, std::string about)
    : folder_(std::move(folder)), about_(std::move(about)) {
  std::error_code error;
  // The folder may go while the program runs: its path is that of the start.
  whole_ = fs::absolute(folder_.PathOf(about_), error).lexically_normal().string();
}

DraftFile::~DraftFile() {
  if (held_ >= 0) ::close(held_);
}

std::vector<DraftFile::Place> DraftFile::Places(int number) const {
  const std::string end = (number > 1 ? "-" + NumberText(number) : "") + ".bozza";
  std::vector<Place> places = {{folder_, ".orm2002-" + about_ + end}};
  if (const std::string own = OwnPlace(); !own.empty())
    places.push_back({WorkFolder(own), ShortName(whole_) + end});
  return places;
}

std::optional<std::string> DraftFile::TakeOver(
    const std::function<bool(std::string_view)>& wanted) {
  for (int number = 1; number <= kMostDrafts; ++number) {
    for (const Place& place : Places(number)) {
      if (StateOf(place.Path()) != State::Left) continue;
      try {
        std::string bytes = place.folder.Read(place.name);
        if (!wanted(bytes)) continue;
        number_ = number;
        Hold(place);
        return bytes;
      } catch (const RuntimeFailure&) {
        continue;  // it stays where it is
      }
    }
  }
  return std::nullopt;
}

bool DraftFile::PutAt(const Place& place, std::string_view bytes) {
  try {
    place.folder.Replace(place.name, bytes, Durability::Remakeable);
  } catch (const RuntimeFailure&) {
    return false;
  }
  Hold(place);
  return true;
}

void DraftFile::Hold(const Place& place) {
  const int fresh = OpenRetrying(place.Path(), O_RDONLY | O_NONBLOCK);
  if (fresh >= 0) ::flock(fresh, LOCK_EX | LOCK_NB);
  if (const int old = std::exchange(held_, fresh); old >= 0) ::close(old);
}

bool DraftFile::Keep(std::string_view bytes) {
  if (kept_ == bytes) return true;
  for (int number = 1; number_ == 0 && number <= kMostDrafts; ++number) {
    bool free = true;
    for (const Place& place : Places(number)) free &= StateOf(place.Path()) == State::Absent;
    if (free) number_ = number;
  }
  if (number_ == 0) return false;
  std::error_code error;
  bool done = false;
  for (const Place& place : Places(number_)) {
    if (!done && place.folder.Path() != folder_.Path()) {
      fs::create_directories(place.folder.Path(), error);
      fs::permissions(place.folder.Path(), fs::perms::owner_all, error);
    }
    // One of a time when the folder could, or could not, be written is older.
    if (done || !PutAt(place, bytes))
      fs::remove(place.Path(), error);
    else
      done = true;
  }
  if (done) kept_ = bytes;
  return done;
}

void DraftFile::Forget() {
  if (number_ == 0) return;
  std::error_code error;
  for (const Place& place : Places(number_)) fs::remove(place.Path(), error);
  if (held_ >= 0) ::close(std::exchange(held_, -1));
  number_ = 0;
  kept_.reset();
}

}  // namespace orm
