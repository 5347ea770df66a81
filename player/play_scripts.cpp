#include "player/play_scripts.h"

#include <algorithm>
#include <array>

#include "player/command_line.h"
#include "player/contact_sheet.h"
#include "player/one_run.h"
#include "player/play_table.h"
#include "player/script_parser.h"
#include "surface/app.h"
#include "surface/failure.h"
#include "surface/system_reason.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::size_t longestMessage = 10000;  // characters

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

int playRuns(const CommandLine& line, std::istream& in, std::ostream& out, std::ostream& err, PlayerParts parts) {
  std::vector<ScriptText> texts;
  for (const auto& file : line.scripts) texts.push_back({file, readScript(file, in, parts.files)});
  if (line.table.empty()) return playOneRun(parsed(texts), out, err, parts, line.keepGoing);
  const Table table = parseTable(line.table, readScript(line.table, in, parts.files));
  return playTable(table, texts, {line.keepGoing, line.jobs}, out, err, parts);
}

int play(const CommandLine& line, std::istream& in, std::ostream& out, std::ostream& err, PlayerParts parts) {
  if (line.wantsHelp || line.wantsVersion) {
    out << (line.wantsHelp ? usageAndHelp() : App::versionLine("orvane-batch"));
    return status::done;
  }
  std::vector<PrintedSheet> sheets;
  PlayerParts ofRuns = parts;
  if (!line.pdf) ofRuns.paper = nullptr;
  if (!line.contactSheet.empty()) ofRuns.savedSheets = &sheets;
  const int ended = playRuns(line, in, out, err, ofRuns);
  if (line.contactSheet.empty()) return ended;
  return std::max(ended, saveContactSheet(line.contactSheet, sheets, err, parts));
}

}  // namespace

int playScripts(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out, std::ostream& err,
                PlayerParts parts) {
  try {
    const int ended = play(parseCommandLine(arguments), in, out, err, parts);
    if (out) return ended;
    err << "orvane-batch: la transcription n'a pas pu être écrite\n";
    return ended == status::notSaved ? status::notSaved : status::notAllDone;
  } catch (const ScriptError& error) {
    err << shortened(error.message, longestMessage) << '\n';
    return status::notPlayed;
  } catch (const std::exception& error) {
    err << "orvane-batch: " << sentenceOn(error) << '\n';
    return status::notAllDone;
  }
}

}  // namespace orvane
