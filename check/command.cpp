#include "check/command.h"

#include <optional>

#include "check/check_folder.h"
#include "check/report.h"
#include "surface/app.h"
#include "surface/disk_files.h"
#include "surface/failure.h"

namespace orvane {
namespace {

constexpr int notChecked = 3;

constexpr std::string_view usage = "usage : orvane-check [--format text|json] [--sheet] [DOSSIER]";
constexpr std::string_view help =
    "\nDit tout ce qui ne va pas dans les huit fichiers de données d'un dossier (le courant, sans autre indication) :\n"
    "ce qui arrête leur lecture, et ce que les règles en feront.\n\n"
    "  --format text   une ligne par constat : fichier:ligne:colonne: gravité: texte\n"
    "  --format json   les mêmes, en objets, avec des codes qui ne changent pas\n"
    "  --sheet         mesure aussi ce que la feuille imprime, dans sa police\n"
    "  -h, --help      cette aide\n"
    "  --version       la version\n\n"
    "Code de sortie : 0 rien à redire (ou des remarques), 1 des avertissements, 2 des erreurs,\n"
    "3 rien n'a pu être contrôlé.\n";

struct CommandLine {
  ReportFormat format = ReportFormat::Text;
  bool withSheets = false;
  bool wantsHelp = false;
  bool wantsVersion = false;
  std::optional<std::string> folder;
};

ReportFormat formatOf(const std::string& name) {
  if (name == "text") return ReportFormat::Text;
  if (name == "json") return ReportFormat::Json;
  throw Failure("format inconnu : " + name + "\n" + std::string(usage));
}

void takeFolder(CommandLine& line, const std::string& argument) {
  if (line.folder) throw Failure("plus d'un dossier : " + argument + "\n" + std::string(usage));
  line.folder = argument;
}

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  bool onlyFolders = false;  // behind "--"
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const auto& argument = arguments[i];
    if (!onlyFolders && argument == "--")
      onlyFolders = true;
    else if (onlyFolders || !argument.starts_with('-'))
      takeFolder(line, argument);
    else if (argument == "--sheet")
      line.withSheets = true;
    else if (argument == "--help" || argument == "-h")
      line.wantsHelp = true;
    else if (argument == "--version")
      line.wantsVersion = true;
    else if (argument == "--format" && i + 1 < arguments.size())
      line.format = formatOf(arguments[++i]);
    else if (argument == "--format")
      throw Failure("--format sans valeur\n" + std::string(usage));
    else if (argument.starts_with("--format="))
      line.format = formatOf(argument.substr(argument.find('=') + 1));
    else
      throw Failure("option inconnue : " + argument + "\n" + std::string(usage));
  }
  return line;
}

int statusOf(const std::vector<Finding>& findings) {
  int status = 0;
  for (const auto& finding : findings) {
    if (finding.severity == Severity::Error) return 2;
    if (finding.severity == Severity::Warning) status = 1;
  }
  return status;
}

int check(const CommandLine& line, std::ostream& out, Pictures& pictures) {
  if (line.wantsHelp) {
    out << usage << '\n' << help;
    return 0;
  }
  if (line.wantsVersion) {
    out << App::versionLine("orvane-check");
    return 0;
  }
  const std::string folder = line.folder.value_or(".");
  DiskFiles files;
  if (files.fileExists(folder)) throw Failure(folder + " n'est pas un dossier");
  files.list(folder);  // fails where it cannot be read
  // Its files are out of reach where only its names may be read.
  if (!files.directoryExists(folder + "/.")) throw Failure("Lecture impossible : " + folder + " (accès refusé).");
  const auto findings = checkFolder(folder, pictures, line.withSheets);
  report(findings, folder, line.format, out);
  return statusOf(findings);
}

}  // namespace

int checkCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err, Pictures& pictures) {
  try {
    const int status = check(parseCommandLine(arguments), out, pictures);
    if (!out.flush()) throw Failure("le rapport n'a pas pu être écrit");
    return status;
  } catch (const Failure& failure) {
    err << "orvane-check: " << failure.what() << '\n';
    return notChecked;
  }
}

}  // namespace orvane
