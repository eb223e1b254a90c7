// What lasts from one command to the next while the program runs: one object of each type, built
// when it is first asked for and gone with the run.
#pragma once

#include <map>
#include <memory>
#include <typeindex>
#include <utility>

namespace orm {

class RunMemory {
 public:
  // The one T of this run. The arguments build it at the first call and count no more afterwards;
  // the reference holds until the run ends.
  template <class T, class... Arguments>
  T& The(Arguments&&... arguments) {
    std::shared_ptr<void>& kept = kept_[std::type_index(typeid(T))];
    if (kept == nullptr) kept = std::make_shared<T>(std::forward<Arguments>(arguments)...);
    return *static_cast<T*>(kept.get());
  }

 private:
  std::map<std::type_index, std::shared_ptr<void>> kept_;
};

}  // namespace orm
