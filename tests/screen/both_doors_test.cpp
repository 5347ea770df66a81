#include <fstream>
#include <gtest/gtest.h>
#include <map>

#include "player/act_kinds.h"
#include "player/one_run.h"
#include "player/script_parser.h"
#include "session/recording.h"
#include "tests/screen/widget_door.h"
#include "tests/support/played_script.h"

namespace orvane::test {
namespace {

// The widgets, with someone who writes down what is done there.
class RecordedDoor final : public WidgetDoor {
 public:
  std::string lines;
  Journal journal{[this](const std::string& act) { lines += act; }};

  Dialogs& dialogs(PlayerDialogs& player) override { return dialogs_.emplace(WidgetDoor::dialogs(player), journal); }
  Clock& clock(Clock& player) override { return clock_.emplace(player, journal); }

 protected:
  std::unique_ptr<User> hand(Run& run) override { return std::make_unique<RecordingUser>(run.desktop(), journal); }

 private:
  std::optional<RecordingDialogs> dialogs_;
  std::optional<RecordingClock> clock_;
};

// What prints is nothing that a user does; it goes into the record at its place, so that the transcripts compare.
struct Noted {
  RecordedDoor& door;
  std::vector<std::string> lines;

  static Noted* current;
  static void play(Stage& stage, const Act& act) {
    if (!stage.desktop.Forms().empty())  // behind the end nothing is written
      current->door.lines += current->lines[static_cast<std::size_t>(act.line) - 1] + "\n";
    actNamed(act.kind->name)->play(stage, act);
  }
};
Noted* Noted::current = nullptr;

const ActKind* notedKind(const ActKind& kind) {
  static std::map<std::string, ActKind> noted;
  return kind.prints ? &noted.emplace(kind.name, ActKind{kind.name, kind.operands, Noted::play}).first->second : &kind;
}

int playNoted(RecordedDoor& door, const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
              const PlayerParts& parts) {
  const std::string bytes = bytesOf(arguments.back());
  Noted noted{door, {}};
  std::istringstream in(bytes);
  for (std::string line; std::getline(in, line);) noted.lines.push_back(line);
  Noted::current = &noted;
  if (!noted.lines.empty() && noted.lines.front().starts_with("# orvane-batch"))
    door.lines = noted.lines.front() + "\n";
  try {
    std::vector<Script> scripts{parseScript(arguments.back(), bytes)};
    for (auto& act : scripts.front().acts) act.kind = notedKind(*act.kind);
    return playOneRun(scripts, out, err, parts, arguments.front() == "--keep-going");
  } catch (const ScriptError& error) {
    err << error.message << '\n';
    return status::notPlayed;
  }
}

// Without what was refused, which is not in the record, and without places in the script.
std::string comparable(const std::string& transcript) {
  std::istringstream lines(transcript);
  std::string text;
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with("failure ") || line.starts_with("expected "))
      text += line.substr(0, line.find(' ')) + line.substr(line.find(": ")) + "\n";
    else if (!line.starts_with("refused ") && !line.starts_with("--- exit status"))
      text += line + "\n";
  return text;
}

// The approved transcripts are those of the player; the screen has to agree, and to show what the forms hold. What is
// written down at the screen does the same once more.
TEST(BothDoors, LeadToTheSameAndSoDoesTheirRecord) {
  if (std::getenv("ORVANE_REBASELINE")) GTEST_SKIP() << "the player rewrites the transcripts";
  const TemporaryFolder folder;
  std::size_t compared = 0;
  for (const auto& script : goldenScripts()) {
    SCOPED_TRACE(script.name);
    RecordedDoor door;
    const PlayedScript onWidgets(script, &door,
                                 [&door](const auto& arguments, auto&, auto& out, auto& err, const auto& parts) {
                                   return playNoted(door, arguments, out, err, parts);
                                 });
    const std::string transcript = onWidgets.text();
    const auto bitmaps = onWidgets.bitmaps();
    expectApproved(script.expected, transcript);
    compared += bitmaps.size();
    EXPECT_TRUE(bitmaps.empty() || bitmaps == PlayedScript(script).bitmaps());
    if (transcript.ends_with("--- exit status 2\n")) continue;  // nothing was played
    GoldenScript record = script;
    record.script = std::filesystem::path(folder.path()) / (script.name + ".script");
    std::ofstream(record.script) << door.lines;
    const PlayedScript again(record);
    EXPECT_EQ(comparable(again.text()), comparable(transcript)) << door.lines;
    EXPECT_TRUE(again.bitmaps() == bitmaps);
  }
  EXPECT_GE(compared, 6U);
}

}  // namespace
}  // namespace orvane::test
