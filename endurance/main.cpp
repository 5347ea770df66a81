#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QLoggingCategory>

#include "canvas/sheet_font.h"
#include "endurance/memory.h"
#include "endurance/rounds.h"
#include "endurance/saved_pairs.h"
#include "screen/program.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using namespace orvane::soak;
using Time = std::chrono::steady_clock;

constexpr int processes = 2;
constexpr int warmUp = 6;                       // rounds
constexpr std::size_t growthAllowed = 4 << 20;  // bytes: caches of glyphs and pictures

// Of the memory that is in use between two rounds.
class Level {
 public:
  void look(const Tally& tally) {
    now_ = memoryInUse();
    if (tally.rounds <= warmUp) highest_ = std::max(highest_, now_);
    require(now_ <= highest_ + growthAllowed, "memory is back at its level");
  }
  std::size_t highest() const { return highest_; }
  std::size_t now() const { return now_; }

 private:
  std::size_t highest_ = 0;
  std::size_t now_ = 0;
};

int soakUntil(Time::time_point end, unsigned seed) {
  std::array<char, 12> name{"orvane-soak"};
  std::array<char*, 2> arguments{name.data(), nullptr};
  int count = 1;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  orvane::forgetGlyphSettings();
  // What the offscreen platform lacks.
  QLoggingCategory::setFilterRules("default.warning=false");
  const QApplication application(count, arguments.data());
  QApplication::setQuitOnLastWindowClosed(false);
  orvane::dressUp();
  std::mt19937 random(seed);
  Tally tally;
  Level level;
  try {
    while (Time::now() < end) {
      ++tally.rounds;
      if (tally.rounds % 2 == 0)
        playRandomActs(random, tally);
      else
        playScriptsOf(orvane::test::sourceFolder() / "examples", random, tally);
      tally.pairs += checkSavedPairs();
      level.look(tally);
    }
  } catch (const std::exception& failure) {
    std::printf("seed %u, round %d: %s\n", seed, tally.rounds, failure.what());
    return 1;
  }
  std::printf(
      "seed %u: %d rounds, %d acts, %d windows by the hundred, %d faults, %d saves, %d pairs looked at; %zu KB in use, "
      "%zu KB after the first rounds\n",
      seed, tally.rounds, tally.acts, tally.windows, tally.faults, tally.saves, tally.pairs, level.now() / 1024,
      level.highest() / 1024);
  const bool didNothing = tally.rounds > warmUp && (tally.saves == 0 || tally.faults == 0);
  return didNothing ? 1 : 0;
}

void copyGame() {
  for (const auto& entry : fs::directory_iterator(orvane::test::sourceFolder() / "game"))
    if (entry.is_regular_file()) fs::copy_file(entry.path(), entry.path().filename());
}

}  // namespace

// orvane-soak SECONDS [SEED]: processes that act at random, all in one folder, each with a seed of its own from SEED
// on.
int main(int argc, char** argv) {
  const int seconds = argc > 1 ? std::atoi(argv[1]) : 0;
  if (seconds <= 0) {
    std::fputs("usage: orvane-soak SECONDS [SEED]\n", stderr);
    return 2;
  }
  const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
  const orvane::test::TemporaryFolder folder;
  fs::current_path(folder.path());
  copyGame();
  const auto end = Time::now() + std::chrono::seconds(seconds);
  for (unsigned i = 0; i < processes; ++i)
    if (::fork() == 0) return soakUntil(end, seed + i);
  int failed = 0;
  for (int status = 0; ::wait(&status) > 0;) failed += status != 0;
  fs::current_path("/");
  return failed == 0 ? 0 : 1;
}
