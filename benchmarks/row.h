#pragma once

#include <functional>
#include <string>
#include <vector>

namespace orvane::bench {

// Does a work once and gives what it cost: seconds, or bytes in the rows on memory.
using Work = std::function<double()>;

// One side of a row. What it needs is made by prepare, and goes with the work.
struct Side {
  std::string name;
  std::function<Work()> prepare;
  // How often the work is done for one result, inside this process; 0 for a work that is a process of its own.
  int repeats = 0;
  // The result times this counts.
  double factor = 1;
};

enum class Unit { Milliseconds, Mebibytes };

// A line of the table.
struct Row {
  Unit unit = Unit::Milliseconds;
  Side program;
  Side yardstick;
  double target = 0;  // the highest ratio; 0 where there is none
};

// A yardstick that is the same everywhere.
Side constant(std::string name, double value);

// Both sides in turn, as many times as there are rounds; gives the median of each.
struct Medians {
  double program;
  double yardstick;
};
Medians measured(const Row& row, int rounds);

}  // namespace orvane::bench
