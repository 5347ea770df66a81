#include "player/command_line.h"

#include <charconv>
#include <string_view>

#include "player/script_parser.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::string_view usage =
    "usage : orvane-batch [--keep-going] [--pdf] [--contact-sheet PLANCHE.pdf] [--with TABLE.csv [--jobs N]] "
    "[SCRIPT...]";
constexpr std::string_view help =
    "\nJoue des scripts de personnages sans écran, l'un après l'autre, et écrit la transcription.\n"
    "Les données se lisent dans le dossier courant, les feuilles se gardent dans ./Perso.\n"
    "Sans SCRIPT, ou pour « - » : l'entrée standard.\n\n"
    "  --keep-going      continue après un acte refusé ; avec un tableau : à la ligne suivante\n"
    "  --with TABLE.csv  joue les scripts une fois par ligne du tableau, où ${colonne} devient son contenu\n"
    "  --jobs N          joue N lignes du tableau à la fois (1 à 64)\n"
    "  --pdf             garde aussi chaque feuille en PDF, à côté de ses deux images\n"
    "  --contact-sheet PLANCHE.pdf\n"
    "                    réunit tous les personnages sauvés, deux par page, en petit\n"
    "  --help            cette aide\n"
    "  --version         la version\n\n"
    "Code de sortie : 0 tout est fait, 1 un acte a été refusé ou a échoué, 2 un script ou un tableau ne se\n"
    "lit pas ou la commande est fautive, 3 une feuille ou un PDF n'a pas pu être sauvé.\n";

// It is replaced where it is there: the script or the table behind a forgotten name must not be.
bool isNameOfPdf(const std::string& file) { return lowerCase(file).ends_with(".pdf"); }

[[noreturn]] void refuse(const std::string& reason) { throw ScriptError{reason + "\n" + std::string(usage)}; }

int jobsOf(const std::string& text) {
  int jobs = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), jobs);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size() || jobs < 1 || jobs > CommandLine::mostJobs)
    refuse("--jobs attend un nombre de 1 à " + std::to_string(CommandLine::mostJobs) + ", pas « " + text + " »");
  return jobs;
}

std::string pdfOf(const std::string& file) {
  if (!isNameOfPdf(file)) refuse("--contact-sheet attend le nom d'un fichier en .pdf, pas « " + file + " »");
  return file;
}

}  // namespace

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    const auto value = [&] {
      if (argument + 1 == arguments.end()) refuse("il manque une valeur à " + *argument);
      return *++argument;
    };
    if (*argument == "--keep-going")
      line.keepGoing = true;
    else if (*argument == "--with")
      line.table = value();
    else if (*argument == "--jobs")
      line.jobs = jobsOf(value());
    else if (*argument == "--pdf")
      line.pdf = true;
    else if (*argument == "--contact-sheet")
      line.contactSheet = pdfOf(value());
    else if (*argument == "--help")
      line.wantsHelp = true;
    else if (*argument == "--version")
      line.wantsVersion = true;
    else if (argument->starts_with('-') && *argument != standardInput)
      refuse("option inconnue : " + *argument);
    else
      line.scripts.push_back(*argument);
  }
  if (line.jobs > 1 && line.table.empty()) refuse("--jobs joue les lignes d'un tableau : --with");
  if (line.scripts.empty()) line.scripts.push_back(standardInput);
  return line;
}

std::string usageAndHelp() { return std::string(usage) + "\n" + std::string(help); }

}  // namespace orvane
