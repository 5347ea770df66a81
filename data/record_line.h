#pragma once

#include <algorithm>
#include <string>

#include "data/reading.h"

namespace orvane {

// One line of a data file, cut into its fields from the left. Each reading takes the next field.
// Text that does not suit, a byte that is no character and, but for the ...ToEnd, a field without a ";" behind it are
// faults, all such bytes of a field or else its first fault alone, and none behind a missing ";". Where the reading
// goes on behind a fault, the value is 0, false or as much of the text as there is.
class RecordLine {
 public:
  // The number counts the title line as 1. The bytes are Windows-1252 and outlive the RecordLine, as does the name.
  RecordLine(Reading& reading, std::string_view file, std::int32_t number, std::string_view bytes)
      : reading_(reading), line_(bytes), rest_(bytes), last_{.file = file, .line = number} {}

  std::string text(const Field& field);
  // All that is left of the line; may hold ";".
  std::string textToEnd(const Field& field);
  // A number, rounded to the nearest whole one, a half to the even neighbour; -32768 to 32767.
  std::int16_t integer(const Field& field);
  std::int16_t integerToEnd(const Field& field);
  // A word for true or false, or a number, 0 being false.
  bool boolean(const Field& field);
  // The number that the field begins with, 0 without one.
  double number(const Field& field);
  // The same, rounded to -32768 to 32767.
  std::int16_t key(const Field& field);

  bool atEnd() const { return rest_.empty(); }
  // How many fields are left that have a ";" behind them.
  std::size_t fieldsLeft() const { return static_cast<std::size_t>(std::count(rest_.begin(), rest_.end(), ';')); }
  // False for a blank line, which is a fault: reading may go on, but there is no record.
  bool isRecord() const { return line_.find_first_not_of(' ') != std::string_view::npos; }
  // A fault in the field last taken, or in the line before the first one.
  void fault(FaultKind kind, std::string_view text = {}) { report({kind, last_, last_.column, text}); }

 private:
  std::string_view cut(const Field& field);
  std::string_view cutToEnd(const Field& field);
  std::string_view take(const Field& field, std::size_t length);
  std::string decoded(std::string_view bytes);
  template <class Value>
  Value converted(std::string_view bytes, FaultKind expected, Value (*convert)(std::string_view));
  bool isFaulty() const { return brokenAt_ != 0 || faultyField_ == last_.position; }
  void report(const Fault& fault);

  Reading& reading_;
  std::string_view line_;
  std::string_view rest_;
  FieldText last_;
  int faultyField_ = -1;  // the last one
  int brokenAt_ = 0;      // the field without a ";", behind which nothing is sure; 0 for none
};

}  // namespace orvane
