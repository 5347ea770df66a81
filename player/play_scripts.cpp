#include "player/play_scripts.h"

#include <array>
#include <iterator>

#include "player/script_parser.h"
#include "surface/failure.h"

namespace orvane {
namespace {

constexpr int done = 0;
constexpr int notAllDone = 1;
constexpr int notPlayed = 2;

const std::string standardInput = "-";

struct CommandLine {
  bool keepGoing = false;
  std::vector<std::string> files;
};

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  for (const auto& argument : arguments) {
    if (argument == "--keep-going")
      line.keepGoing = true;
    else if (argument.starts_with('-') && argument != standardInput)
      throw ScriptError{"option inconnue : " + argument + "\nusage : orvane-batch [--keep-going] [SCRIPT...]"};
    else
      line.files.push_back(argument);
  }
  if (line.files.empty()) line.files.push_back(standardInput);
  return line;
}

std::string readAll(std::istream& in) {
  std::string text;
  for (std::array<char, 4096> part{}; in; text.append(part.data(), static_cast<std::size_t>(in.gcount())))
    in.read(part.data(), part.size());
  if (in.bad()) throw ScriptError{standardInput + ": Lecture impossible."};
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

int play(const CommandLine& line, std::istream& in, std::ostream& out, PlayerParts parts) {
  std::vector<Script> scripts;
  for (const auto& file : line.files) scripts.push_back(parseScript(file, readScript(file, in, parts.files)));
  return ScriptPlayer(out, parts, line.keepGoing).play(scripts) ? done : notAllDone;
}

}  // namespace

int playScripts(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err,
                PlayerParts parts) {
  try {
    const int status = play(parseCommandLine(arguments), in, out, parts);
    if (out) return status;
    err << "orvane-batch: la transcription n'a pas pu être écrite\n";
    return notAllDone;
  } catch (const ScriptError& error) {
    err << error.message << '\n';
    return notPlayed;
  }
}

}  // namespace orvane
