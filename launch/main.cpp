#include <cerrno>
#include <filesystem>
#include <iostream>
#include <unistd.h>

#include <QApplication>
#include <QMessageBox>

#include "launch/work_folder.h"
#include "surface/app.h"
#include "surface/disk_files.h"
#include "surface/failure.h"
#include "surface/system_reason.h"

namespace {

using orvane::Failure;

constexpr std::string_view help =
    "usage : orvane-launch [--session]\n"
    "Démarre Orvane dans le dossier « Orvane » de vos documents, où il place d'abord ce qui y manque des données du\n"
    "jeu ; les personnages s'y gardent dans « Perso ». Ce que vous y avez changé n'est jamais remplacé.\n\n"
    "  --session   continue la session « session.script » de ce dossier, ou en commence une : tout ce que vous y "
    "faites\n"
    "              est gardé au fur et à mesure\n"
    "  --help      cette aide\n"
    "  --version   la version\n";

// In a box where there is a screen.
void tell(QMessageBox::Icon icon, const std::string& text, int argc, char** argv) {
  std::cerr << "orvane-launch: " << text << '\n';
  if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY")) return;
  const QApplication application(argc, argv);
  QMessageBox(icon, "Orvane", QString::fromStdString(text), QMessageBox::Ok).exec();
}

std::filesystem::path ownFolder() { return std::filesystem::read_symlink("/proc/self/exe").parent_path(); }

[[noreturn]] void start(const std::string& folder, bool withMemory) {
  if (chdir(folder.c_str()) != 0)
    throw Failure("Impossible d'aller dans " + folder + " (" + orvane::systemReason(errno) + ").");
  const std::string program = ownFolder() / (withMemory ? "orvane-session" : "orvane");
  execl(program.c_str(), program.c_str(), withMemory ? "session.script" : nullptr, nullptr);
  throw Failure("Impossible de démarrer " + program + " (" + orvane::systemReason(errno) + ").");
}

int launch(int argc, char** argv, bool withMemory) {
  const std::string installed = (ownFolder() / ORVANE_GAME_FOLDER).lexically_normal();
  const std::string folder = orvane::workFolder();
  orvane::DiskFiles files;
  const std::string words = orvane::wordsOn(orvane::deliver(files, installed, folder), installed, folder);
  if (!words.empty()) tell(QMessageBox::Information, words, argc, argv);
  start(folder, withMemory);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string argument = argc > 1 ? argv[1] : "";
  if (argument == "--help" || argument == "--version") {
    std::cout << (argument == "--help" ? help : orvane::App::versionLine("orvane-launch"));
    return 0;
  }
  try {
    const bool withMemory = argument == "--session";
    if (!withMemory && !argument.empty()) throw Failure("Argument inconnu : " + argument);
    return launch(argc, argv, withMemory);
  } catch (const std::exception& error) {
    tell(QMessageBox::Critical, orvane::sentenceOn(error), argc, argv);
    return 1;
  }
}
