#include <cmath>
#include <cstring>
#include <filesystem>
#include <iomanip>
#include <iostream>

#include <QApplication>

#include "benchmarks/rows.h"
#include "canvas/sheet_font.h"
#include "screen/program.h"

namespace orvane::bench {
namespace {

constexpr int manyRounds = 11;

void printHead() {
  std::cout << std::left << std::setw(62) << "work" << std::right << std::setw(13) << "program"
            << "  " << std::left << std::setw(42) << "yardstick" << std::right << std::setw(13) << "" << std::setw(8)
            << "ratio" << std::setw(8) << "target" << std::endl;
}

void printValue(double value, Unit unit) {
  const bool isTime = unit == Unit::Milliseconds;
  std::cout << std::setw(9) << std::setprecision(isTime ? 3 : 2) << value * (isTime ? 1e3 : 1.0 / (1 << 20))
            << (isTime ? " ms " : " MiB");
}

void print(const Row& row, const Medians& medians) {
  const double ratio = medians.program / medians.yardstick;
  std::cout << std::fixed << std::left << std::setw(62) << row.program.name << std::right;
  printValue(medians.program, row.unit);
  std::cout << "  " << std::left << std::setw(42) << row.yardstick.name << std::right;
  printValue(medians.yardstick, row.unit);
  std::cout << std::setw(8) << std::setprecision(2) << ratio;
  if (row.target > 0) std::cout << std::setw(8) << row.target << (ratio <= row.target ? "  met" : "  not met");
  std::cout << std::endl;
}

bool concerns(const Row& row, const std::string& word) { return row.program.name.find(word) != std::string::npos; }

// No screen, nothing of the user's own, and no words about either.
void settleIn(const Path& home) {
  ::qputenv("QT_QPA_PLATFORM", "offscreen");
  ::qputenv("HOME", home.c_str());
  ::qunsetenv("XDG_CONFIG_HOME");
  ::qputenv("XDG_RUNTIME_DIR", home.c_str());
  ::qputenv("QT_LOGGING_RULES", "default.warning=false");
}

int run(const Path& sources, bool alive, const std::string& word) {
  const Folders folders(sources);
  settleIn(folders.home());
  forgetGlyphSettings();
  char name[] = "orvane-bench";
  char* arguments[] = {name, nullptr};
  int count = 1;
  const QApplication application(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  dressUp();
  printHead();
  for (const auto& row : allRows(folders))
    if (concerns(row, word)) print(row, measured(row, alive ? 1 : manyRounds));
  return 0;
}

int weigh(const Path& sources) {
  char name[] = "orvane-bench";
  char* arguments[] = {name, nullptr};
  int count = 1;
  const QApplication application(count, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  dressUp();
  std::cout << std::fixed << weighWindows(sources) << std::endl;
  return 0;
}

}  // namespace
}  // namespace orvane::bench

// orvane-bench [--alive | --weigh-windows] SOURCES [WORD]: the rows whose work has that word; --alive does each work
// once.
int main(int argc, char* argv[]) {
  std::vector<std::string> words(argv + 1, argv + argc);
  const auto takes = [&](const char* option) { return std::erase(words, option) > 0; };
  const bool alive = takes("--alive");
  const bool weighs = takes("--weigh-windows");
  if (words.empty()) return 2;
  try {
    const auto sources = std::filesystem::absolute(words.front());
    if (weighs) return orvane::bench::weigh(sources);
    return orvane::bench::run(sources, alive, words.size() > 1 ? words[1] : std::string());
  } catch (const std::exception& error) {
    std::cerr << "orvane-bench: " << error.what() << std::endl;
    return 1;
  }
}
