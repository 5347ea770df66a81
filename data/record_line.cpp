#include "data/record_line.h"

#include <cmath>

#include "data/windows_1252.h"
#include "surface/failure.h"
#include "surface/numbers.h"
#include "surface/text.h"

namespace orvane {
namespace {

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

std::string RecordLine::text(const Field& field) { return decoded(cut(field)); }

std::string RecordLine::textToEnd(const Field& field) { return decoded(cutToEnd(field)); }

std::int16_t RecordLine::integer(const Field& field) { return converted(cut(field), FaultKind::Integer, wholeNumber); }

std::int16_t RecordLine::integerToEnd(const Field& field) {
  return converted(cutToEnd(field), FaultKind::IntegerToEnd, wholeNumber);
}

bool RecordLine::boolean(const Field& field) { return converted(cut(field), FaultKind::Boolean, truth); }

double RecordLine::number(const Field& field) { return converted(cut(field), FaultKind::Number, finitePrefix); }

std::int16_t RecordLine::key(const Field& field) { return converted(cut(field), FaultKind::Key, keyPrefix); }

std::string_view RecordLine::cut(const Field& field) {
  const auto separator = rest_.find(';');
  const auto bytes = take(field, separator);
  if (separator != std::string_view::npos) {
    rest_.remove_prefix(1);
  } else {
    report({FaultKind::Separator, last_, static_cast<std::int32_t>(line_.size()) + 1});
    if (brokenAt_ == 0) brokenAt_ = last_.position;
  }
  return bytes;
}

std::string_view RecordLine::cutToEnd(const Field& field) { return take(field, rest_.size()); }

std::string_view RecordLine::take(const Field& field, std::size_t length) {
  last_.column = static_cast<std::int32_t>(line_.size() - rest_.size()) + 1;
  last_.bytes = rest_.substr(0, length);
  last_.field = field;
  ++last_.position;
  rest_.remove_prefix(last_.bytes.size());
  reading_.field(last_);
  return last_.bytes;
}

std::string RecordLine::decoded(std::string_view bytes) {
  if (isFaulty()) return fromWindows1252(bytes);
  for (auto i = firstOutsideWindows1252(bytes); i < bytes.size(); i = firstOutsideWindows1252(bytes, i + 1)) {
    faultyField_ = last_.position;
    reading_.fault({FaultKind::Character, last_, last_.column + static_cast<std::int32_t>(i)});
  }
  return fromWindows1252(bytes);
}

template <class Value>
Value RecordLine::converted(std::string_view bytes, FaultKind expected, Value (*convert)(std::string_view)) {
  const bool isPlain = std::all_of(bytes.begin(), bytes.end(), isAscii);
  const std::string text = isPlain ? std::string(bytes) : decoded(bytes);
  try {
    return convert(text);
  } catch (const Failure&) {
    fault(expected);
    return {};
  }
}

void RecordLine::report(const Fault& fault) {
  if (isFaulty()) return;
  faultyField_ = last_.position;
  reading_.fault(fault);
}

}  // namespace orvane
