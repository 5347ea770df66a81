#include "player/play_scripts.h"

#include <array>

#include "player/script_parser.h"
#include "surface/app.h"
#include "surface/failure.h"
#include "surface/system_reason.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr int done = 0;
constexpr int notAllDone = 1;
constexpr int notPlayed = 2;
constexpr int notSaved = 3;
constexpr std::size_t longestMessage = 10000;  // characters

const std::string standardInput = "-";

constexpr std::string_view usage = "usage : orvane-batch [--keep-going] [SCRIPT...]";
constexpr std::string_view help =
    "\nJoue des scripts de personnages sans écran, l'un après l'autre, et écrit la transcription.\n"
    "Les données se lisent dans le dossier courant, les feuilles se gardent dans ./Perso.\n"
    "Sans SCRIPT, ou pour « - » : l'entrée standard.\n\n"
    "  --keep-going   continue après un acte refusé\n"
    "  --help         cette aide\n"
    "  --version      la version\n\n"
    "Code de sortie : 0 tout est fait, 1 un acte a été refusé ou a échoué, 2 un script ne se lit pas\n"
    "ou la commande est fautive, 3 une feuille n'a pas pu être sauvée.\n";

struct CommandLine {
  bool keepGoing = false;
  bool wantsHelp = false;
  bool wantsVersion = false;
  std::vector<std::string> files;
};

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  for (const auto& argument : arguments) {
    if (argument == "--keep-going")
      line.keepGoing = true;
    else if (argument == "--help")
      line.wantsHelp = true;
    else if (argument == "--version")
      line.wantsVersion = true;
    else if (argument.starts_with('-') && argument != standardInput)
      throw ScriptError{"option inconnue : " + argument + "\n" + std::string(usage)};
    else
      line.files.push_back(argument);
  }
  if (line.files.empty()) line.files.push_back(standardInput);
  return line;
}

std::string readAll(std::istream& in) {
  std::string text;
  for (std::array<char, 4096> part{}; in && text.size() <= largestFile;
       text.append(part.data(), static_cast<std::size_t>(in.gcount())))
    in.read(part.data(), part.size());
  if (in.bad()) throw ScriptError{standardInput + ": Lecture impossible."};
  if (text.size() > largestFile)
    throw ScriptError{standardInput + ": Lecture impossible (" + std::string(tooLargeFile) + ")."};
  return text;
}

std::string readScript(const std::string& file, std::istream& in, Files& files) {
  if (file == standardInput) return readAll(in);
  try {
    return files.read(file);
  } catch (const Failure& failure) {
    throw ScriptError{file + ": " + failure.what()};
  }
}

int play(const CommandLine& line, std::istream& in, std::ostream& out, std::ostream& err, PlayerParts parts) {
  if (line.wantsHelp || line.wantsVersion) {
    out << (line.wantsHelp ? std::string(usage) + "\n" + std::string(help) : App::versionLine("orvane-batch"));
    return done;
  }
  std::vector<Script> scripts;
  for (const auto& file : line.files) scripts.push_back(parseScript(file, readScript(file, in, parts.files)));
  ScriptPlayer player(out, err, parts, line.keepGoing);
  const bool allDone = player.play(scripts);
  if (player.hasUnsavedSheets()) return notSaved;
  return allDone ? done : notAllDone;
}

}  // namespace

int playScripts(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err,
                PlayerParts parts) {
  try {
    const int status = play(parseCommandLine(arguments), in, out, err, parts);
    if (out) return status;
    err << "orvane-batch: la transcription n'a pas pu être écrite\n";
    return status == notSaved ? notSaved : notAllDone;
  } catch (const ScriptError& error) {
    err << shortened(error.message, longestMessage) << '\n';
    return notPlayed;
  } catch (const std::exception& error) {
    err << "orvane-batch: " << sentenceOn(error) << '\n';
    return notAllDone;
  }
}

}  // namespace orvane
