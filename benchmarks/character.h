#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "benchmarks/folders.h"
#include "player/script_player.h"
#include "sheet/frmFeuille.h"

namespace orvane::bench {

// Full characters, as scripts.
class Character {
 public:
  explicit Character(const Path& sources);

  // Under another name than the others have.
  Script numbered(int number) const;
  const Path& file() const { return file_; }
  // A table that plays it as often as it has rows.
  static std::string table(int rows);

 private:
  Path file_;
  std::string text_;
};

// Told of the clicks of a script.
struct Watch {
  std::function<void(Control&)> before = [](Control&) {};
  std::function<void(const std::string& name)> after = [](const std::string&) {};
};

// Plays scripts in the current directory; fails where an act was refused. On the screen too, where it is to be shown.
void play(const std::vector<Script>& scripts, Pictures& pictures, const Watch& watch, bool shown = false);

// What a character takes, by some clock.
struct CharacterTimes {
  double acts = 0;   // from the new window to the click that makes the sheet
  double sheet = 0;  // from that click until it is saved
};

// The character has no sheet in the current directory, and none afterwards.
CharacterTimes playTimed(const Script& script, Pictures& pictures, double (*clock)());

// What is printed on the front and the back of its sheet.
using Prints = std::array<std::vector<PrintLog::Entry>, 2>;
Prints printsOf(const Script& script, Pictures& pictures);

}  // namespace orvane::bench
