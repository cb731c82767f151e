#include "sim/assemble_game.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include "engine/game.h"

// A hook added to the table but left out of the assembly would silently do
// nothing in every played game.
TEST(AssembleGame, HangsSomethingOnEveryHook) {
  Game g;
  AssembleGame(g);
  static_assert(sizeof(GameHooks) % sizeof(void (*)()) == 0, "GameHooks holds only function pointers");
  std::array<void (*)(), sizeof(GameHooks) / sizeof(void (*)())> hooks{};
  std::memcpy(hooks.data(), &g.Hooks, sizeof(GameHooks));
  for (size_t i = 0; i < hooks.size(); ++i) EXPECT_NE(hooks[i], nullptr) << "hook " << i;
}
