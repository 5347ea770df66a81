#include "benchmarks/character.h"

#include <filesystem>
#include <optional>
#include <sstream>

#include "player/script_parser.h"
#include "screen/windows.h"
#include "surface/disk_files.h"
#include "surface/system_clock.h"

namespace orvane::bench {
namespace {

const std::string nameOfFile = "Anne Ravel";

std::string renamed(std::string text, const std::string& name) {
  for (auto found = text.find(nameOfFile); found != std::string::npos; found = text.find(nameOfFile, found + 1))
    text.replace(found, nameOfFile.size(), name);
  return text;
}

class WatchedUser final : public User {
 public:
  WatchedUser(Desktop& desktop, const Watch& watch, bool shown) : User(desktop), watch_(watch) {
    if (shown) windows_.emplace(desktop, *this);
  }

  void click(Control& control) override {
    const std::string name = control.Name();
    watch_.before(control);
    User::click(control);
    watch_.after(name);
  }

 private:
  const Watch& watch_;
  std::optional<Windows> windows_;
};

class WatchedDoor final : public Door {
 public:
  WatchedDoor(const Watch& watch, bool shown) : watch_(watch), shown_(shown) {}

  Dialogs& dialogs(PlayerDialogs& player) override { return player; }
  std::unique_ptr<User> user(Run& run) override { return std::make_unique<WatchedUser>(run.desktop(), watch_, shown_); }

 private:
  const Watch& watch_;
  bool shown_;
};

}  // namespace

Character::Character(const Path& sources)
    : file_(sources / "examples" / "patrouille.script"), text_(contentsOf(file_)) {}

Script Character::numbered(int number) const {
  return parseScript(file_.string(), renamed(text_, nameOfFile + ' ' + std::to_string(number)));
}

std::string Character::table(int rows) {
  std::string text = "ligne\n";
  for (int row = 1; row <= rows; ++row) text += std::to_string(row) + '\n';
  return text;
}

void play(const std::vector<Script>& scripts, Pictures& pictures, const Watch& watch, bool shown) {
  std::ostringstream transcript;
  DiskFiles files;
  SystemClock clock;
  WatchedDoor door(watch, shown);
  ScriptPlayer player(transcript, transcript, {files, pictures, clock, &door}, false);
  if (!player.play(scripts)) throw std::runtime_error(transcript.str());
}

CharacterTimes playTimed(const Script& script, Pictures& pictures, double (*clock)()) {
  CharacterTimes times;
  const Watch watch{[&](Control& control) {
                      if (control.Name() == "mnuFileNewPJ") times.acts -= clock();
                      if (control.Name() != "cmdPrintPreview") return;
                      times.acts += clock();
                      times.sheet -= clock();
                    },
                    [&](const std::string& name) {
                      if (name == "cmdSave") times.sheet += clock();
                    }};
  play({script}, pictures, watch);
  std::filesystem::remove_all("Perso");
  return times;
}

Prints printsOf(const Script& script, Pictures& pictures) {
  Prints prints;
  const auto note = [&](Control& control) {
    auto* sheet = dynamic_cast<frmFeuille*>(&control.form());
    if (!sheet || control.Name() != "cmdSave") return;
    for (const auto& entry : sheet->log.printed) prints[entry.picture == &sheet->pctRecto ? 0 : 1].push_back(entry);
  };
  play({script}, pictures, {.before = note});
  std::filesystem::remove_all("Perso");
  return prints;
}

}  // namespace orvane::bench
