#include "player/script_words.h"

#include <cstddef>
#include <cstdint>
#include <unicode/ustring.h>

namespace orvane {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }

char unescaped(char c) {
  switch (c) {
    case '"':
    case '\\':
      return c;
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case 't':
      return '\t';
    default:
      throw LineError{std::string("échappement inconnu « \\") + c + " » dans un texte"};
  }
}

class LineCutter {
 public:
  explicit LineCutter(std::string_view line) : line_(line) {}

  std::vector<Word> words() {
    std::vector<Word> found;
    for (skipBlanks(); !atEnd(); skipBlanks()) found.push_back(here() == '"' ? quotedWord() : bareWord());
    return found;
  }

 private:
  bool atEnd() const { return place_ == line_.size(); }
  char here() const { return line_[place_]; }

  void skipBlanks() {
    while (!atEnd() && isBlank(here())) ++place_;
  }

  Word bareWord() {
    Word word;
    for (; !atEnd() && !isBlank(here()); ++place_) {
      if (here() == '"') throw LineError{"guillemet au milieu d'un mot : " + word.text + "\""};
      word.text += here();
    }
    return word;
  }

  Word quotedWord() {
    Word word{{}, true};
    for (++place_; !atEnd() && here() != '"'; ++place_) word.text += here() == '\\' ? escape() : here();
    if (atEnd()) throw LineError{"texte sans guillemet fermant"};
    ++place_;
    if (!atEnd() && !isBlank(here())) throw LineError{"un blanc manque après un texte"};
    return word;
  }

  char escape() {
    if (++place_ == line_.size()) throw LineError{"texte sans guillemet fermant"};
    return unescaped(here());
  }

  std::string_view line_;
  std::size_t place_ = 0;
};

}  // namespace

void requireUtf8(std::string_view line) {
  std::int32_t units = 0;
  UErrorCode status = U_ZERO_ERROR;
  u_strFromUTF8(nullptr, 0, &units, line.data(), static_cast<std::int32_t>(line.size()), &status);
  if (status == U_INVALID_CHAR_FOUND) throw LineError{"la ligne n'est pas en UTF-8"};
}

std::string_view withoutByteOrderMark(std::string_view bytes) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  return bytes.starts_with(mark) ? bytes.substr(mark.size()) : bytes;
}

std::vector<Word> scriptWords(std::string_view line) { return LineCutter(line).words(); }

}  // namespace orvane
