#include <iostream>
#include <string>
#include <string_view>

#include <QApplication>

#include "canvas/sheet_font.h"
#include "session/orvane-session/program.h"
#include "session/orvane-session/shorten.h"
#include "surface/app.h"

namespace {

constexpr std::string_view usage = "usage : orvane-session [--pdf] FICHIER, ou orvane-session --shorten FICHIER\n";
constexpr std::string_view help =
    "\nOrvane avec une mémoire : ce que vous faites dans ses fenêtres s'écrit dans FICHIER, un acte par ligne,\n"
    "et la fois d'après tout reprend là où vous en étiez. orvane-batch FICHIER rejoue la même session sans écran.\n"
    "Les données se lisent dans le dossier courant, les feuilles se gardent dans ./Perso.\n\n"
    "  --pdf      garde aussi chaque feuille en PDF, à côté de ses deux images\n"
    "  --shorten  ne garde que les actes dont le résultat a besoin, s'il est prouvé que ce résultat est le même ;\n"
    "             le fichier d'avant est gardé à côté\n"
    "  --help     cette aide\n"
    "  --version  la version\n";

int shorten(int argc, char* argv[]) {
  // Pictures need no screen.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  const QGuiApplication application(argc, argv);
  return orvane::shortenSession(argv[2]);
}

int goOn(const std::string& path, bool pdf, int argc, char* argv[]) {
  const QApplication application(argc, argv);
  QApplication::setApplicationName("Orvane");
  QApplication::setDesktopFileName("orvane");
  return orvane::runSession(path, pdf);
}

}  // namespace

int main(int argc, char* argv[]) {
  const std::string_view argument = argc > 1 ? argv[1] : "";
  if (argument == "--help" || argument == "--version") {
    argument == "--help" ? std::cout << usage << help : std::cout << orvane::App::versionLine("orvane-session");
    return 0;
  }
  orvane::forgetGlyphSettings();
  if (argument == "--shorten" && argc == 3) return shorten(argc, argv);
  const bool pdf = argument == "--pdf";
  const std::string_view path = argc == (pdf ? 3 : 2) ? argv[argc - 1] : "";
  if (!path.empty() && !path.starts_with('-')) return goOn(std::string(path), pdf, argc, argv);
  std::cerr << usage;
  return 2;
}
