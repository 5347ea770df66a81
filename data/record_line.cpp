#include "data/record_line.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "data/excerpt.h"
#include "data/windows_1252.h"
#include "surface/failure.h"
#include "surface/numbers.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::string_view anInteger = "un nombre entier de -32768 à 32767";
constexpr std::string_view anIntegerAtTheEnd = "un nombre entier de -32768 à 32767, sans rien derrière, pas même « ; »";
constexpr std::string_view aBoolean = "True, False, Vrai, Faux ou un nombre";
constexpr std::string_view aNumber = "un nombre moins grand";
constexpr std::string_view aKey = "une clé de -32768 à 32767";
constexpr std::string_view aSeparator = "« ; » à la fin du champ";

std::int16_t wholeNumber(std::string_view text) { return toInt16(strictNumber(text)); }

double finitePrefix(std::string_view text) {
  const double value = numericPrefix(text);
  if (!std::isfinite(value)) throw Failure("Nombre trop grand.");
  return value;
}

std::int16_t keyPrefix(std::string_view text) { return toInt16(numericPrefix(text)); }

bool truth(std::string_view text) {
  const std::string word = lowerCase(text);
  if (word == "true" || word == "vrai") return true;
  if (word == "false" || word == "faux") return false;
  return strictNumber(text) != 0;
}

}  // namespace

std::string RecordLine::text(Field field) { return decoded(field, cut(field)); }

std::string RecordLine::textToEnd(Field field) { return decoded(field, cutToEnd()); }

std::int16_t RecordLine::integer(Field field) { return converted(field, cut(field), anInteger, wholeNumber); }

std::int16_t RecordLine::integerToEnd(Field field) {
  return converted(field, cutToEnd(), anIntegerAtTheEnd, wholeNumber);
}

bool RecordLine::boolean(Field field) { return converted(field, cut(field), aBoolean, truth); }

double RecordLine::number(Field field) { return converted(field, cut(field), aNumber, finitePrefix); }

std::int16_t RecordLine::key(Field field) { return converted(field, cut(field), aKey, keyPrefix); }

std::string_view RecordLine::cut(Field field) {
  const auto separator = rest_.find(';');
  const std::string_view bytes = rest_.substr(0, separator);
  ++position_;
  if (separator == std::string_view::npos) failIn(field, excerpt(bytes), aSeparator);
  rest_.remove_prefix(separator + 1);
  return bytes;
}

std::string_view RecordLine::cutToEnd() {
  ++position_;
  return std::exchange(rest_, {});
}

std::string RecordLine::decoded(Field field, std::string_view bytes) const {
  const auto wrong = std::find_if_not(bytes.begin(), bytes.end(), inWindows1252);
  if (wrong != bytes.end())
    failIn(field, excerpt(bytes, static_cast<std::size_t>(wrong - bytes.begin())),
           "un texte en Windows-1252, qui n'a pas de caractère <" + hexadecimal(*wrong) + ">");
  return fromWindows1252(bytes);
}

template <class Value>
Value RecordLine::converted(Field field, std::string_view bytes, std::string_view expected,
                            Value (*convert)(std::string_view)) const {
  const std::string text = decoded(field, bytes);
  try {
    return convert(text);
  } catch (const Failure&) {
    failIn(field, excerpt(bytes), expected);
  }
}

void RecordLine::failIn(Field field, const std::string& found, std::string_view expected) const {
  fail("champ " + std::to_string(position_) + " (" + std::string(field.member) + ", " + std::string(field.meaning) +
       ") : trouvé " + found + ", attendu " + std::string(expected) + ".");
}

void RecordLine::fail(const std::string& reason) const {
  throw Failure("fichier " + std::string(file_) + ", ligne " + std::to_string(number_) + ", " + reason);
}

}  // namespace orvane
