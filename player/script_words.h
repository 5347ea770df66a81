#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// What is wrong with a line of a script, in French.
struct LineError {
  std::string reason;
};

struct Word {
  std::string text;     // of a quoted word: what stands between the quotes, its escapes resolved
  bool quoted = false;  // a text
};

// What scripts and their tables share as text files. Throws a LineError for bytes that are no UTF-8.
void requireUtf8(std::string_view line);
std::string_view withoutByteOrderMark(std::string_view bytes);

// Cuts a line into its words, which stand apart by blanks or tabs. Throws a LineError.
std::vector<Word> scriptWords(std::string_view line);

}  // namespace orvane
