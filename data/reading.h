#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace orvane {

// A field of a record, as a fault names it: the member that it fills and what that means, in French.
struct Field {
  std::string_view member;
  std::string_view meaning;
};

// A field as it stands in a data file.
struct FieldText {
  std::string_view file;
  std::int32_t line = 1;    // the title line is 1
  std::int32_t column = 1;  // of its first character, from 1
  int position = 0;         // among the fields of its line, from 1
  Field field = {};
  std::string_view bytes = {};  // Windows-1252
};

// What makes the reader stop or warn. The last ones are those of a field: what was expected in it.
enum class FaultKind {
  MissingFile,
  UnreadableFile,
  EmptyFile,
  NoLineEnd,
  NoAssermente,
  AssermenteOutOfReach,
  UnknownTechnic,
  Separator,
  Integer,
  IntegerToEnd,
  Boolean,
  Number,
  Key,
  Character,
};

struct Fault {
  FaultKind kind;
  FieldText at;                // the file alone, the line alone, or the field
  std::int32_t column = 1;     // where in the line, characters from 1
  std::string_view text = {};  // the art that names an unknown technique; why a file cannot be read; its bytes
};

// A fault in a sentence for the player.
std::string describe(const Fault& fault);

// Told what the reader of the data files meets. The names of files and members last, other views end with the call.
class Reading {
 public:
  virtual ~Reading() = default;
  // Ends the reading by an exception; where it returns, the reader goes on behind the fault.
  virtual void fault(const Fault& fault) = 0;
  virtual void field(const FieldText&) {}
  // The fields since the last record make one, and it was added.
  virtual void record() {}
};

}  // namespace orvane
