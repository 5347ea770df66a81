#include <iostream>
#include <string_view>

#include <QApplication>

#include "canvas/sheet_font.h"
#include "session/orvane-session/program.h"
#include "surface/app.h"

namespace {

constexpr std::string_view usage = "usage : orvane-session FICHIER\n";
constexpr std::string_view help =
    "\nOrvane avec une mémoire : ce que vous faites dans ses fenêtres s'écrit dans FICHIER, un acte par ligne,\n"
    "et la fois d'après tout reprend là où vous en étiez. orvane-batch FICHIER rejoue la même session sans écran.\n"
    "Les données se lisent dans le dossier courant, les feuilles se gardent dans ./Perso.\n\n"
    "  --help     cette aide\n"
    "  --version  la version\n";

}  // namespace

int main(int argc, char* argv[]) {
  const std::string_view argument = argc == 2 ? argv[1] : "";
  if (argument == "--help") {
    std::cout << usage << help;
    return 0;
  }
  if (argument == "--version") {
    std::cout << orvane::App::versionLine("orvane-session");
    return 0;
  }
  if (argument.empty() || argument.starts_with('-')) {
    std::cerr << usage;
    return 2;
  }
  orvane::forgetGlyphSettings();
  QApplication application(argc, argv);
  QApplication::setApplicationName("Orvane");
  QApplication::setDesktopFileName("orvane");
  return orvane::runSession(argv[1]);
}
