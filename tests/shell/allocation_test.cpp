// Play takes no memory: rules and drawing work in what the opening of the screen has laid out.
//
// The allocator is replaced to be counted, which the sanitizers' own replacement forbids.
#include <gtest/gtest.h>

#if defined(__SANITIZE_ADDRESS__) || defined(VELLMORAN_CHECK_INDICES)
#define COUNTS_NOTHING
#endif

#ifndef COUNTS_NOTHING

#include <cstdlib>
#include <new>
#include <random>

#include "shell/script_runner.h"

namespace {

bool counting = false;
long allocations = 0;

void* allocate(std::size_t size) {
  if (counting) ++allocations;
  if (void* memory = std::malloc(size != 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}

}  // namespace

[[gnu::noinline]] void* operator new(std::size_t size) {
  return allocate(size);
}
[[gnu::noinline]] void* operator new[](std::size_t size) {
  return allocate(size);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete[](void* memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace {

namespace ui = script::ui;

TEST(Play, TenMinutesOfPressesTicksScrollsAndWalkersAllocateNothing) {
  script::Play play("click mainnew, stopen, Check2, opengo; advance 500");
  // The virtual audio layer keeps a log: without sound and music it has nothing to write.
  play.run("click Command5, scrollspeedminus; choose Combo1 Off; click Command7");
  play.run("set population=1000; advance 1000; click Command21");
  for (int y = 10; y <= 20; ++y) play.run("press @15," + std::to_string(y));
  driver::Session& session = play.session();
  core::GameState& game = play.state();
  session.program().paint();

  // Every twenty steps of 200 ms: the panels and modes, and the map in between. Left out are the doors
  // to music, to files and to the menu.
  struct Button {
    int step, first, choices;
  };
  constexpr Button kButtons[] = {{0, ui::Statusreport, 1},
                                 {1, ui::taxrateminus, 3},
                                 {2, ui::statusclose, 1},
                                 {3, ui::Label3, 1},
                                 {4, ui::Command21, 1},
                                 {5, ui::seer, ui::kViewKeys},
                                 {7, ui::seer, 1},
                                 {8, ui::inform, 1},
                                 {10, ui::building, 1},
                                 {12, ui::Command1, ui::kToolKeys},
                                 {15, ui::Command1, ui::kToolKeys},
                                 {18, ui::Command1, 1}};
  platform::Form& form = session.program().screen()->form();
  std::minstd_rand chance(7);
  const auto below = [&chance](int n) {
    return static_cast<int>(chance() % static_cast<unsigned>(n));
  };
  const double firstId = game.nextBuildingId;
  int walkers = 0;
  int slid = 0;
  counting = true;
  for (int step = 0; step < 3000; ++step) {
    game.gold = 1000;
    if (step % 100 == 0) game.food = below(2) * 1000;
    int button = -1;
    for (const Button& due : kButtons) {
      if (due.step == step % 20) button = due.first + below(due.choices);
    }
    if (button >= 0) {
      const platform::Rect place = form.onScreen(button);
      session.pointer(place.left + place.width / 2, place.top + place.height / 2);
    } else if (below(10) == 0) {
      session.pointer(below(2) * 799, below(2) * 599);
    } else {
      session.pointer(60 + below(540), 100 + below(480));
    }
    session.press();
    session.release();
    session.advance(200);
    session.program().paint();
    for (int slot = 1; slot <= core::kWalkers; ++slot) walkers += game.walkerActive[slot];
    slid += game.scrollX != 0;
  }
  counting = false;
  EXPECT_EQ(allocations, 0);
  // It was a game, and all of it was played.
  EXPECT_GT(game.nextBuildingId, firstId + 50);
  EXPECT_GT(walkers, 50);
  EXPECT_GT(slid, 50);
}

}  // namespace

#endif
