#include <chrono>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iostream>

#include "shell/frmMain.h"
#include "shell/main_procedure.h"
#include "tests/random/invariants.h"
#include "tests/random/random_user.h"
#include "tests/support/approved.h"
#include "tests/support/fakes.h"

namespace orvane::test {
namespace {

// Boxes are answered and dialogs filled in by the random user.
class RandomDialogs : public Dialogs {
 public:
  RandomUser* user = nullptr;
  std::string failures;
  int saves = 0;

  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string&) override {
    saves += prompt.find("sauvé(e) dans ./Perso/") != std::string::npos;
    return user ? user->answer(style) : Answer::OK;
  }
  void runModal(Form& form) override { user->actModal(form); }
  void failure(const std::string& description) override { failures += description + "\n"; }
  void notice(const std::string& text) override { failures += text + "\n"; }
};

struct Played {
  int acts = 0;
  int sheets = 0;
  int saves = 0;
};

Played play(const MemoryFiles& game, unsigned seed, int acts) {
  TestWorld<RandomDialogs> world;
  world.files = game;
  auto& dialogs = world.dialogs;
  Run run(world.world());
  run.Main();
  User hand(run.desktop());
  RandomUser user(hand, run.desktop(), seed);
  dialogs.user = &user;
  Played played;
  for (; played.acts < acts; ++played.acts) {
    world.clock.now += 0.25F;
    user.act(*run.mainWindow());
    if (!dialogs.failures.empty()) {
      ADD_FAILURE() << "seed " << seed << ", act " << played.acts << ", " << user.lastAct() << ": " << dialogs.failures;
      break;
    }
    std::string broken;
    for (const auto& form : run.desktop().Forms()) {
      played.sheets += form->Name() == "frmFeuille";
      if (const auto* perso = dynamic_cast<const frmPersonnage*>(form.get()); perso && broken.empty())
        broken = brokenInvariant(*perso, run.data());
    }
    if (!broken.empty()) {
      ADD_FAILURE() << "seed " << seed << ", act " << played.acts << ", " << user.lastAct() << ": " << broken;
      break;
    }
  }
  played.saves = dialogs.saves;
  return played;
}

// ORVANE_RANDOM_SEEDS=N plays N seeds instead of the usual number.
TEST(RandomActs, BreakNoInvariantOnTheGame) {
  const char* wanted = std::getenv("ORVANE_RANDOM_SEEDS");
  const unsigned seeds = wanted ? static_cast<unsigned>(std::atoi(wanted)) : 8;
  constexpr int actsOfASeed = 2500;
  const MemoryFiles game = filesOf();
  Played all;
  const auto start = std::chrono::steady_clock::now();
  for (unsigned seed = 1; seed <= seeds && !HasFailure(); ++seed) {
    const Played played = play(game, seed, actsOfASeed);
    all.acts += played.acts;
    all.sheets += played.sheets;
    all.saves += played.saves;
  }
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  std::cout << all.acts << " acts in " << seconds << " s: " << static_cast<int>(all.acts / seconds)
            << " a second; sheets were open after " << all.sheets << " acts, " << all.saves << " saves\n";
  EXPECT_GT(all.sheets, 0);
  EXPECT_GT(all.saves, 0);
}

}  // namespace
}  // namespace orvane::test
