#include <gtest/gtest.h>
#include <sstream>

#include "player/one_run.h"
#include "player/script_parser.h"
#include "session/full_state.h"
#include "session/session.h"
#include "shell/frmMain.h"
#include "tests/random/random_user.h"
#include "tests/support/approved.h"
#include "tests/support/fakes.h"

namespace orvane::test {
namespace {

class RandomAnswers : public LoggedDialogs {
 public:
  RandomUser* user = nullptr;

  Answer MsgBox(const std::string&, BoxStyle style, const std::string&) override {
    return user ? user->answer(style) : Answer::OK;
  }
  void runModal(Form& form) override { user->actModal(form); }
};

// A session whose user does random things, in a world and with a file of its own.
class RandomSession {
 public:
  explicit RandomSession(const MemoryFiles& files) {
    world_.files = files;
    session_.run().Main();
  }

  std::string lines;

  void play(unsigned seed, int acts) {
    RandomUser user(session_.user(), session_.run().desktop(), seed);
    world_.dialogs.user = &user;
    for (int i = 0; i < acts; ++i) {
      world_.clock.now += 0.2503F;
      user.act(*session_.run().mainWindow());
    }
    world_.dialogs.user = nullptr;
  }
  void takeUp(const std::string& past) {
    session_.refused = [](const Act& act, const std::string& reason) { ADD_FAILURE() << act.line << ": " << reason; };
    const Script script = parseScript("past", past);
    session_.playPast(script);
    EXPECT_EQ(lines, "");
  }
  std::string state() { return fullState(session_.run().desktop()); }
  MemoryFiles& files() { return world_.files; }
  float& now() { return world_.clock.now; }
  const Log& told() const { return world_.dialogs.log; }

 private:
  TestWorld<RandomAnswers> world_;
  Session session_{world_.world(), [this](const std::string& act) { lines += act; }};
};

MemoryFiles writtenBy(const std::string& lines, const MemoryFiles& game) {
  TestWorld<> world;
  world.files = game;
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(playOneRun({parseScript("record", lines)}, out, err, {world.files, world.pictures, world.clock}, false), 0)
      << out.str();
  return world.files;
}

// What random acts come to, their record comes to: for a session that takes it up, which then goes on alike, and for
// the player, which writes the same files.
TEST(RecordedActs, LeadToTheSame) {
  const MemoryFiles game = filesOf();
  std::size_t saved = 0;
  for (unsigned seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE(seed);
    RandomSession first(game);
    first.play(seed, 1500);
    const std::string past = first.lines;
    RandomSession second(first.files());
    second.takeUp(past);
    second.now() = first.now();
    EXPECT_EQ(second.files().contents, first.files().contents);
    ASSERT_EQ(second.state(), first.state());
    EXPECT_EQ(second.told(), Log{});
    first.play(seed + 100, 300);
    second.play(seed + 100, 300);
    EXPECT_EQ(past + second.lines, first.lines);
    EXPECT_EQ(second.state(), first.state());
    EXPECT_EQ(writtenBy(first.lines, game).contents, first.files().contents);
    saved += first.files().contents.size() - game.contents.size();
  }
  EXPECT_GE(saved, 2U);
}

}  // namespace
}  // namespace orvane::test
