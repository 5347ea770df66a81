#include "data/reading.h"

#include "data/excerpt.h"
#include "surface/text.h"

namespace orvane {
namespace {

std::string expected(const Fault& fault) {
  switch (fault.kind) {
    case FaultKind::Separator:
      return "« ; » à la fin du champ";
    case FaultKind::Integer:
      return "un nombre entier de -32768 à 32767";
    case FaultKind::IntegerToEnd:
      return "un nombre entier de -32768 à 32767, sans rien derrière, pas même « ; »";
    case FaultKind::Boolean:
      return "True, False, Vrai, Faux ou un nombre";
    case FaultKind::Number:
      return "un nombre moins grand";
    case FaultKind::Key:
      return "une clé de -32768 à 32767";
    default:
      return "un texte en Windows-1252, qui n'a pas de caractère <" +
             hexadecimal(fault.at.bytes[static_cast<std::size_t>(fault.column - fault.at.column)]) + ">";
  }
}

std::string found(const Fault& fault) {
  const bool isCharacter = fault.kind == FaultKind::Character;
  return excerpt(fault.at.bytes, isCharacter ? static_cast<std::size_t>(fault.column - fault.at.column) : 0);
}

}  // namespace

std::string describe(const Fault& fault) {
  const auto& [file, line, column, position, field, bytes] = fault.at;
  const std::string place = "fichier " + std::string(file) + ", ligne " + std::to_string(line) + ", ";
  switch (fault.kind) {
    case FaultKind::MissingFile:
      return "Fichier " + std::string(file) + " manquant.";
    case FaultKind::UnreadableFile:
      return std::string(fault.text);
    case FaultKind::EmptyFile:
      return place + "fichier vide : attendu une ligne de titre.";
    case FaultKind::NoLineEnd:
      return place + "trouvé " + excerpt(fault.text) + ", attendu des lignes qui se terminent par LF ou CR LF.";
    case FaultKind::NoAssermente:
      return "Erreur: pas de profil \"Assermenté\" chargé.";
    case FaultKind::AssermenteOutOfReach:
      return place + "le profil \"Assermenté\" vient au-delà du 32767e profil.";
    case FaultKind::UnknownTechnic:
      return "Il existe une technique martiale inconnue dans " + shortened(fault.text);
    default:
      return place + "champ " + std::to_string(position) + " (" + std::string(field.member) + ", " +
             std::string(field.meaning) + ") : trouvé " + found(fault) + ", attendu " + expected(fault) + ".";
  }
}

}  // namespace orvane
