#include "session/orvane-session/shorten.h"

#include <chrono>
#include <filesystem>
#include <iostream>
#include <unistd.h>

#include "canvas/qt_pictures.h"
#include "player/script_parser.h"
#include "session/data_marks.h"
#include "session/session_file.h"
#include "session/shortening.h"
#include "surface/disk_files.h"
#include "surface/failure.h"
#include "surface/system_reason.h"
#include "surface/text.h"

namespace orvane {
namespace {

using Time = std::chrono::steady_clock;
constexpr auto patience = std::chrono::minutes(2);

void requireSameData(const std::string& session, Files& files) {
  for (const auto& name : changedData(session, files))
    throw Failure(name + " a changé depuis cette session : reprenez-la d'abord avec les nouvelles données.");
}

bool show(std::size_t settled, std::size_t of, Time::time_point start) {
  if (::isatty(STDERR_FILENO))
    std::cerr << '\r' << settled << '/' << of << (settled < of ? "" : "\r\033[K") << std::flush;
  return Time::now() - start < patience;
}

void shorten(const std::string& path) {
  if (!std::filesystem::exists(path)) throw Failure("Il n'y a pas de session " + path + ".");
  DiskFiles files;
  QtPictures pictures;
  SessionFile file(path);
  requireSameData(file.text(), files);
  const auto start = Time::now();
  const Shortened shorter = shortened(file.text(), files, pictures,
                                      [&](std::size_t settled, std::size_t of) { return show(settled, of, start); });
  if (shorter.kept == shorter.acts) {
    std::cout << path << " : aucun de ses " << shorter.acts << " actes n'est de trop.\n";
    return;
  }
  const std::string kept = file.restart(shorter.text);
  std::cout << path << " : " << shorter.kept << " actes au lieu de " << shorter.acts
            << ", pour les mêmes fenêtres et les mêmes feuilles. Le fichier d'avant : " << kept << "\n";
}

}  // namespace

int shortenSession(const std::string& path) {
  constexpr int unchanged = 2;
  try {
    shorten(path);
    return 0;
  } catch (const ScriptError& error) {
    std::cerr << shortened(error.message) << '\n';
  } catch (const std::exception& error) {
    std::cerr << "orvane-session: " << sentenceOn(error) << '\n';
  }
  return unchanged;
}

}  // namespace orvane
