// What the program does about a failure that nobody foresaw.
#include "shell/shell.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>

#include "tests/temporary_folder.h"
#include "tests/unit/fake_player.h"

namespace orm {
namespace {

class Careless : public FakePlayer {
 public:
  std::function<void()> failure;

 protected:
  void Present(Form&) override { failure(); }
};

TEST(Shell, AnyFailureOfACommandIsToldAndTheProgramGoesOn) {
  const TemporaryFolder place;
  Careless player;
  Shell shell(player, place.Folder());
  const auto told = [&](std::function<void()> failure) {
    player.failure = std::move(failure);
    player.messages.clear();
    shell.Choose("PERS_UTENTE");
    return player.messages.empty() ? std::string() : player.messages.back().text;
  };
  EXPECT_EQ(told([] { throw std::length_error("fuori misura"); }), "Errore interno: fuori misura");
  EXPECT_EQ(told([] { throw std::bad_alloc(); }), "La memoria non basta per eseguire il comando.");
  EXPECT_FALSE(shell.Ended());
}

}  // namespace
}  // namespace orm
