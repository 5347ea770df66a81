#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <iostream>
#include <set>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "sheet/recovery.h"
#include "sheet/sheet_files.h"
#include "tests/sheet/faulty_files.h"
#include "tests/support/fakes.h"
#include "tests/support/temporary_folder.h"

namespace orvane::test {
namespace {

namespace fs = std::filesystem;
using Bitmaps = std::array<std::string, 2>;
using Texts = std::vector<std::string>;

const Bitmaps goals = {"./Perso/Luc_1.bmp", "./Perso/Luc_2.bmp"};
const Bitmaps absent;
const Bitmaps former = {"old front", "old back"};
const Bitmaps dead = {"front of a dead program", "back of a dead program"};
const Bitmaps fresh = {"new front", "new back"};

// Runs in a process of its own. True where it came to its end and gave true.
bool runs(const std::function<bool()>& process) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(process() ? 0 : 1);
  int status = 0;
  ::waitpid(child, &status, 0);
  return status == 0;
}

// What a program told, and whether it saved.
struct Told {
  bool saved = false;
  bool hasPaper = false;
  Texts texts;
  bool names(const std::string& what) const {
    return std::any_of(texts.begin(), texts.end(), [&](auto& text) { return text.find(what) != std::string::npos; });
  }
};

// Whoever reads what is told holds nobody up.
struct DialogsOutOfTurn : LoggedDialogs {
  void notice(const std::string& text) override {
    EXPECT_TRUE(DiskFiles().lock("./Perso", 0)) << text;
    LoggedDialogs::notice(text);
  }
};

// Each pair of the tests has a PDF that says so; there is none where it says nothing.
const std::string goalOfPaper = "./Perso/Luc.pdf";
std::string paperOf(const Bitmaps& bitmaps) { return bitmaps == absent ? "" : "PDF: " + bitmaps[0] + bitmaps[1]; }

Told save(Files& files, const Bitmaps& bitmaps, bool withPaper = false) {
  DialogsOutOfTurn dialogs;
  Told told;
  SheetFiles sheet(files, "Luc");
  try {
    sheet.makeFolder();
    const auto turn = sheet.takeTurn(dialogs);
    MakePaper paper;
    if (withPaper) paper = [&] { return paperOf(bitmaps); };
    told.hasPaper = sheet.save({[&] { return bitmaps[0]; }, [&] { return bitmaps[1]; }}, paper);
    told.saved = true;
  } catch (const Failure& failure) {
    told.texts.push_back(failure.what());
  }
  told.texts.insert(told.texts.end(), sheet.remarks().begin(), sheet.remarks().end());
  told.texts.insert(told.texts.end(), dialogs.log.begin(), dialogs.log.end());
  return told;
}

Texts start(Files& files) {
  LoggedDialogs dialogs;
  recoverSavesAtStart(files, dialogs);
  return dialogs.log;
}

// A whole program: its start and a save.
Told play(Files& files, bool withPaper) {
  const Texts first = start(files);
  Told told = save(files, fresh, withPaper);
  told.texts.insert(told.texts.begin(), first.begin(), first.end());
  return told;
}

// What lies in ./Perso when the program starts: files of before, and what a program left that died at some call.
struct State {
  std::string name;
  Bitmaps pair;
  bool front = false;  // is a link to a file outside
  bool linksKnown = true;
  bool paper = false;  // beside the pair of before, and wanted by all that save
  int deadAt = 0;
};

class Pair : public ::testing::Test {
 protected:
  Pair() : cwd_(fs::current_path()) { fs::current_path(folder_.path()); }
  ~Pair() override { fs::current_path(cwd_); }

  void setUp(const State& state) {
    fs::remove_all("Perso");
    DiskFiles disk;
    if (state.pair != absent || state.deadAt > 0) fs::create_directory("Perso");
    fs::remove("outside");
    disk.write("outside", former[0]);
    for (std::size_t i = 0; i < goals.size(); ++i)
      if (!state.pair[i].empty() && !(i == 0 && state.front)) disk.write(goals[i], state.pair[i]);
    if (state.front) fs::create_symlink("../outside", goals[0]);
    if (state.paper && state.pair != absent) disk.write(goalOfPaper, paperOf(state.pair));
    if (state.deadAt > 0) runs([&] { return dies(state); });
  }
  static bool dies(const State& state) {
    FaultyFiles files;
    files.knowsLinks = state.linksKnown;
    files.faultAt = [&](int call) { return call == state.deadAt ? Fault::Kill : Fault::None; };
    return save(files, dead, state.paper).saved;
  }

  static Bitmaps pair() {
    Bitmaps found;
    for (std::size_t i = 0; i < goals.size(); ++i)
      if (fs::exists(goals[i])) found[i] = DiskFiles().read(goals[i]);
    return found;
  }
  static std::string paper() { return fs::exists(goalOfPaper) ? DiskFiles().read(goalOfPaper) : ""; }
  // All in ./Perso that is no goal.
  static std::set<std::string> companions() {
    std::set<std::string> found;
    if (!fs::exists("Perso")) return found;
    for (const auto& entry : fs::directory_iterator("./Perso"))
      if (entry.path() != goals[0] && entry.path() != goals[1] && entry.path() != goalOfPaper)
        found.insert(entry.path());
    return found;
  }
  // Everything in ./Perso with its bytes.
  static std::string listing() {
    std::set<std::string> lines;
    if (fs::exists("Perso"))
      for (const auto& entry : fs::recursive_directory_iterator("./Perso"))
        lines.insert(entry.path().string() + (entry.is_regular_file() ? "=" + DiskFiles().read(entry.path()) : ""));
    std::string text;
    for (const auto& line : lines) text += line + "\n";
    return text;
  }

  // All states that a program may find, counted out: a dead one can have ended at each of its calls.
  std::vector<State> states() {
    std::vector<State> found;
    for (const State& base : bases) {
      std::set<std::string> known;
      for (State state = base;; ++state.deadAt) {
        setUp(state);
        if (known.insert(listing()).second) found.push_back(state);
        if (pair() == dead && companions().empty()) break;
      }
    }
    return found;
  }

  void expectTruth(const State& state, const Told& told, const Bitmaps& pairBefore,
                   const std::set<std::string>& companionsBefore) {
    const Bitmaps now = pair();
    const bool isNew = told.saved || told.names("est pourtant en place");
    for (std::size_t i = 0; i < goals.size(); ++i)
      EXPECT_TRUE(isNew ? now == fresh : now[i] == pairBefore[i] || now[i] == state.pair[i] || told.names(goals[i]))
          << ::testing::PrintToString(told.texts);
    for (const auto& companion : companions())
      EXPECT_TRUE(companionsBefore.count(companion) > 0 || told.names(companion)) << companion;
    EXPECT_TRUE(told.saved || !told.texts.empty());
    if (!state.paper || !told.saved) return;
    EXPECT_EQ(told.hasPaper, !told.names("son PDF n'a pas pu l'être"));
    EXPECT_TRUE(paper() == (told.hasPaper ? paperOf(fresh) : "") || told.names("Ne vous fiez pas à " + goalOfPaper));
  }

  // That of the pair, or none; what replaced nothing has lost nothing.
  static void expectPaperOf(const State& state, const Bitmaps& now) {
    EXPECT_TRUE(paper() == paperOf(now) || (paper().empty() && now != state.pair)) << paper();
  }

  void expectWhole(const State& state, bool paperIsDoubtful) {
    const std::size_t left = companions().size();
    DiskFiles disk;
    EXPECT_EQ(start(disk).size(), left);
    EXPECT_EQ(companions(), std::set<std::string>());
    const Bitmaps now = pair();
    EXPECT_TRUE(now == state.pair || now == fresh || (now == dead && state.deadAt > 0)) << now[0] << ", " << now[1];
    EXPECT_EQ(disk.read("outside"), former[0]);
    EXPECT_EQ(fs::is_symlink(goals[0]), state.front && now == state.pair);
    if (state.paper && !paperIsDoubtful) expectPaperOf(state, now);
  }

  // One case: what lies on the disk after a program that met these faults, and after the next start. Gives the calls.
  int expectSound(const State& state, int failing, int again, int killed) {
    ++cases_;
    SCOPED_TRACE(state.name + ", dead at " + std::to_string(state.deadAt) + ", fails at " + std::to_string(failing) +
                 " and " + std::to_string(again) + ", killed at " + std::to_string(killed));
    setUp(state);
    const Bitmaps pairBefore = pair();
    const auto companionsBefore = companions();
    FaultyFiles files;
    files.knowsLinks = state.linksKnown;
    files.faultAt = [&](int call) {
      if (call == killed) return Fault::Kill;
      return call == failing || call == again || (again == onward && call > failing) ? Fault::Failure : Fault::None;
    };
    Told told;
    if (killed > 0) {
      EXPECT_FALSE(runs([&] { return play(files, state.paper).saved || true; }));
    } else {
      told = play(files, state.paper);
      expectTruth(state, told, pairBefore, companionsBefore);
    }
    expectWhole(state, told.names("Ne vous fiez pas"));
    return files.calls;
  }

  int callsOfAStart(const State& state) {
    setUp(state);
    FaultyFiles files;
    start(files);
    return files.calls;
  }

  static constexpr int none = 0;
  static constexpr int onward = -1;
  int cases_ = 0;

 private:
  static const std::vector<State> bases;

  TemporaryFolder folder_;
  fs::path cwd_;
};

const std::vector<State> Pair::bases = {
    {.name = "no file", .pair = absent},
    {.name = "both", .pair = former},
    {.name = "front alone", .pair = {"old front", ""}},
    {.name = "back alone", .pair = {"", "old back"}},
    {.name = "a link", .pair = former, .front = true},
    {.name = "no second paths", .pair = former, .linksKnown = false},
    {.name = "first PDF", .pair = absent, .paper = true},
    {.name = "with a PDF", .pair = former, .paper = true},
};

TEST_F(Pair, IsWhollyOldOrWhollyNewWhateverFailsWhereverAProgramDies) {
  for (const auto& state : states()) {
    // Once the start has recovered what a dead program left, all goes on as without.
    const int calls = state.deadAt > 0 ? callsOfAStart(state) : expectSound(state, none, none, none);
    for (int call = 1; call <= calls && !HasFailure(); ++call) {
      expectSound(state, none, none, call);
      expectSound(state, call, onward, none);
      const int callsWithUndo = expectSound(state, call, none, none);
      for (int next = call + 1; next <= callsWithUndo && state.deadAt == 0; ++next) {
        expectSound(state, call, next, none);
        expectSound(state, call, none, next);
      }
    }
  }
  std::cout << cases_ << " cases in " << states().size() << " states\n";
}

TEST_F(Pair, OfTwoProgramsThatSaveOneNameIsThatOfOne) {
  for (int round = 0; round < 100 && !HasFailure(); ++round) {
    setUp({.name = "", .pair = round % 2 == 0 ? absent : former});
    const pid_t other = ::fork();
    DiskFiles disk;
    if (other == 0) ::_exit(save(disk, dead).saved ? 0 : 1);
    const Told told = save(disk, fresh);
    int status = 0;
    ::waitpid(other, &status, 0);
    EXPECT_TRUE(told.saved && status == 0) << ::testing::PrintToString(told.texts);
    EXPECT_TRUE(pair() == fresh || pair() == dead) << pair()[0] << ", " << pair()[1];
    EXPECT_EQ(companions(), std::set<std::string>());
  }
}

TEST_F(Pair, TakesBackWhatADeadProgramBeganAndKeepsTheRightsOfWhatItReplaces) {
  State state{.name = "", .pair = former};
  do {
    ++state.deadAt;
    setUp(state);
  } while (companions().empty());
  // Where the system lets us: a group that is not our own.
  [[maybe_unused]] const int given = ::chown(goals[1].c_str(), static_cast<uid_t>(-1), 1);
  fs::permissions(goals[1], fs::perms(0640));
  struct stat before {};
  ASSERT_EQ(::stat(goals[1].c_str(), &before), 0);
  DiskFiles disk;
  const Told told = save(disk, fresh);
  EXPECT_TRUE(told.saved && told.names("a été interrompue"));
  EXPECT_EQ(pair(), fresh);
  EXPECT_EQ(companions(), std::set<std::string>());
  struct stat after {};
  ASSERT_EQ(::stat(goals[1].c_str(), &after), 0);
  EXPECT_EQ(after.st_mode & 0777, before.st_mode & 0777);
  EXPECT_EQ(after.st_gid, before.st_gid);
}

TEST_F(Pair, WaitsForItsTurnAndSaysWhoIsFirst) {
  DiskFiles disk;
  setUp({.name = "", .pair = absent});
  fs::create_directories("Perso/.sauvegarde-1");
  disk.write("Perso/.sauvegarde-1/Éva_1.bmp", "");
  const auto other = disk.lock("./Perso", 0);
  EXPECT_EQ(start(disk), Texts{}) << "whose writer is alive is never touched";
  EXPECT_TRUE(save(disk, fresh).names("en train de sauver « Éva » dans ./Perso."));
  EXPECT_EQ(listing(), "./Perso/.sauvegarde-1\n./Perso/.sauvegarde-1/Éva_1.bmp=\n");
}

// Not ours: other names, a folder with something else in it, a link to a folder, the companions of an older scheme.
TEST_F(Pair, NothingElseIsTouched) {
  setUp({.name = "", .pair = absent});
  DiskFiles disk;
  for (const char* folder :
       {".sauvegarde-1", ".sauvegarde-02", ".sauvegarde-3x", "elsewhere", ".sauvegarde-4/Luc_1.bmp"})
    fs::create_directories(fs::path("Perso") / folder);
  for (const char* file : {".sauvegarde-1/Luc_1.bmp", ".sauvegarde-1/Luc_3.bmp", ".sauvegarde-6", "elsewhere/Luc_1.old",
                           "Luc_1.~n~", "Luc_2.~o~", "Luc_1.~1~"})
    disk.write((fs::path("Perso") / file).string(), "precious");
  fs::create_directory_symlink("elsewhere", "Perso/.sauvegarde-5");
  const std::string before = listing();
  EXPECT_EQ(start(disk), Texts{});
  EXPECT_EQ(listing(), before);
  EXPECT_TRUE(save(disk, fresh).saved);
  for (const auto& goal : goals) disk.Kill(goal);
  EXPECT_EQ(listing(), before);
}

}  // namespace
}  // namespace orvane::test
