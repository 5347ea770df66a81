#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

// A field of a record, as a failure names it: the member that it fills and what that means, in French.
struct Field {
  std::string_view member;
  std::string_view meaning;
};

// One line of a data file, cut into its fields from the left. Each reading takes the next field.
// All readings fail, with the place and what was expected there, where the text does not suit or holds a byte that is
// no character; all but the ...ToEnd also where no ";" stands behind the field.
class RecordLine {
 public:
  // The number counts the title line as 1. The bytes are Windows-1252 and outlive the RecordLine.
  RecordLine(std::string_view file, std::int32_t number, std::string_view bytes)
      : file_(file), number_(number), rest_(bytes) {}

  std::string text(Field field);
  // All that is left of the line; may hold ";".
  std::string textToEnd(Field field);
  // A number, rounded to the nearest whole one, a half to the even neighbour; -32768 to 32767.
  std::int16_t integer(Field field);
  std::int16_t integerToEnd(Field field);
  // A word for true or false, or a number, 0 being false.
  bool boolean(Field field);
  // The number that the field begins with, 0 without one.
  double number(Field field);
  // The same, rounded to -32768 to 32767.
  std::int16_t key(Field field);

  bool atEnd() const { return rest_.empty(); }
  // Fails with the place in the file and this reason.
  [[noreturn]] void fail(const std::string& reason) const;

 private:
  std::string_view cut(Field field);
  std::string_view cutToEnd();
  std::string decoded(Field field, std::string_view bytes) const;
  template <class Value>
  Value converted(Field field, std::string_view bytes, std::string_view expected,
                  Value (*convert)(std::string_view)) const;
  [[noreturn]] void failIn(Field field, const std::string& found, std::string_view expected) const;

  std::string_view file_;
  std::int32_t number_;
  std::string_view rest_;
  int position_ = 0;
};

}  // namespace orvane
