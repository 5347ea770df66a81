#include <iostream>
#include <unistd.h>

#include "canvas/sheet_font.h"
#include "player/batch/late_toolkit.h"
#include "player/play_scripts.h"
#include "surface/disk_files.h"
#include "surface/system_clock.h"

namespace {

// The last line of a terminal.
class ProgressBar final : public orvane::Progress {
 public:
  void show(std::size_t ended, std::size_t of) override {
    constexpr std::size_t width = 40;
    const std::size_t filled = ended * width / of;
    std::cerr << '[' << std::string(filled, '#') << std::string(width - filled, ' ') << "] " << ended << '/' << of
              << std::flush;
  }
  void hide() override { std::cerr << "\r\033[K" << std::flush; }
};

// Nobody sits in front of it: a save waits for its turn, among as many processes as there are.
class PatientFiles final : public orvane::DiskFiles {
 public:
  std::unique_ptr<orvane::FolderLock> lock(const std::string& directory, float seconds) override {
    return DiskFiles::lock(directory, seconds > 0 ? longest : seconds);
  }

 private:
  static constexpr float longest = 60;
};

}  // namespace

int main(int argc, char** argv) {
  // Only the streams' own buffers tell a reader that standard input has failed.
  std::ios::sync_with_stdio(false);
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  orvane::forgetGlyphSettings();
  // Pictures need no screen, whatever the session's own settings ask for.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  PatientFiles files;
  orvane::LateToolkit toolkit(argv);
  orvane::LatePictures pictures(toolkit);
  orvane::LatePaper paper(toolkit);
  orvane::SystemClock timeOfDay;
  ProgressBar bar;
  orvane::PlayerParts parts{files, pictures, timeOfDay};
  parts.paper = &paper;
  if (::isatty(STDERR_FILENO)) parts.progress = &bar;
  return orvane::playScripts(arguments, std::cin, std::cout, std::cerr, parts);
}
