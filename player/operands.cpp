#include "player/operands.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "player/player_world.h"

namespace orvane {
namespace {

// What fits an int with room to count on. No list, window or family is as large: what lies beyond is as little there.
constexpr int largestNumber = 999'999'999;

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isNameCharacter(char c) { return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }
bool isColourDigit(char c) { return isDigit(c) || (c >= 'A' && c <= 'F'); }

bool isName(std::string_view text) {
  return !text.empty() && !isDigit(text.front()) && std::all_of(text.begin(), text.end(), isNameCharacter);
}

std::optional<int> wholeNumber(std::string_view text) {
  int number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || result.ptr != text.data() + text.size() || result.ec == std::errc::invalid_argument)
    return std::nullopt;
  if (result.ec == std::errc::result_out_of_range) number = text.front() == '-' ? -largestNumber : largestNumber;
  return std::clamp(number, -largestNumber, largestNumber);
}

// "inf" and "nan" are names, not numbers.
std::optional<double> decimalNumber(std::string_view text) {
  const std::string_view unsignedText = text.substr(text.starts_with('-') ? 1 : 0);
  if (unsignedText.empty() || !isDigit(unsignedText.front())) return std::nullopt;
  double number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size()) return std::nullopt;
  return number;
}

// The name and the bracketed index of "txtCaract(3)".
std::optional<ControlName> indexedName(std::string_view text) {
  const auto bracket = text.find('(');
  ControlName found{std::string(text.substr(0, bracket)), std::nullopt};
  if (!isName(found.name)) return std::nullopt;
  if (bracket == std::string_view::npos) return found;
  if (!text.ends_with(')')) return std::nullopt;
  found.index = wholeNumber(text.substr(bracket + 1, text.size() - bracket - 2));
  if (!found.index || *found.index < 0) return std::nullopt;
  return found;
}

[[noreturn]] void reject(Operand operand, const Word& word) {
  throw LineError{std::string(operandName(operand)) + " attendu, et non " +
                  (word.quoted ? "un texte entre guillemets" : "« " + word.text + " »")};
}

template <class T>
T accepted(const std::optional<T>& value, Operand operand, const Word& word) {
  if (!value || word.quoted) reject(operand, word);
  return *value;
}

void takeTarget(Act& act, const Word& word) { act.target = accepted(indexedName(word.text), Operand::Target, word); }

void takeProperty(Act& act, const Word& word) {
  const auto dot = word.text.find('.');
  if (dot == std::string::npos) reject(Operand::Property, word);
  act.target = accepted(indexedName(std::string_view(word.text).substr(0, dot)), Operand::Property, word);
  act.property = accepted(indexedName(std::string_view(word.text).substr(dot + 1)), Operand::Property, word).text();
}

void takeText(Act& act, const Word& word) {
  if (!word.quoted) reject(Operand::Text, word);
  act.text = word.text;
}

void takeEntry(Act& act, const Word& word) {
  if (word.quoted)
    act.entry = word.text;
  else
    act.entry = accepted(wholeNumber(word.text), Operand::Choice, word);
}

void takeNumber(Act& act, const Word& word) { act.number = accepted(wholeNumber(word.text), Operand::Number, word); }

void takeSeconds(Act& act, const Word& word) {
  const double seconds = accepted(decimalNumber(word.text), Operand::Seconds, word);
  if (seconds < 0 || seconds > largestNumber) reject(Operand::Seconds, word);
  act.seconds = static_cast<float>(seconds);
}

void takeAnswer(Act& act, const Word& word) {
  act.answers.push_back(accepted(buttonNamed(word.text), Operand::Answer, word));
}

void takeValue(Act& act, const Word& word) {
  const bool bare = word.text == "True" || word.text == "False" || decimalNumber(word.text).has_value() ||
                    (!word.text.empty() && std::all_of(word.text.begin(), word.text.end(), isColourDigit));
  if (!word.quoted && !bare) reject(Operand::Literal, word);
  act.value = word.quoted ? quoted(word.text) : word.text;
}

struct OperandForm {
  Operand operand;
  const char* name;
  void (*take)(Act&, const Word&);
};

constexpr OperandForm forms[] = {
    {Operand::Target, "contrôle", takeTarget},
    {Operand::Property, "contrôle.propriété", takeProperty},
    {Operand::Text, "texte entre guillemets", takeText},
    {Operand::Choice, "texte entre guillemets ou position", takeEntry},
    {Operand::Number, "nombre entier", takeNumber},
    {Operand::Seconds, "nombre de secondes", takeSeconds},
    {Operand::Answer, "bouton (OK, Cancel, Yes ou No)", takeAnswer},
    {Operand::Literal, "texte entre guillemets, nombre, booléen ou couleur", takeValue},
};

const OperandForm& formOf(Operand operand) { return forms[static_cast<std::size_t>(operand)]; }

}  // namespace

const char* operandName(Operand operand) { return formOf(operand).name; }

void takeOperand(Act& act, Operand operand, const Word& word) { formOf(operand).take(act, word); }

}  // namespace orvane
