#include "check/mended_bytes.h"

#include <algorithm>

#include "data/windows_1252.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

// The characters of a line in UTF-8; nothing for one in plain ASCII or in another encoding.
std::optional<std::u32string> utf8Characters(std::string_view line) {
  const auto first = std::find_if_not(line.begin(), line.end(), isAscii);
  const bool isAlone = line.end() - first < 2 || isAscii(first[1]);  // as no byte of UTF-8 is
  return isAlone ? std::nullopt : charactersOf(line);
}

// Of a line that has letters of the code page, which bytes in the code page do not look like by chance.
bool looksLikeUtf8(const std::u32string& characters) {
  return std::any_of(characters.begin(), characters.end(), [](char32_t c) { return c >= 0x80 && toWindows1252(c); });
}

struct Utf16 {
  bool hasMark;
  bool bigEndian;
};

// Without a mark it is known by the zero bytes beside most of its characters, which no other text has.
std::optional<Utf16> utf16Of(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE")) return Utf16{true, false};
  if (bytes.starts_with("\xFE\xFF")) return Utf16{true, true};
  std::size_t zeros[] = {0, 0};
  for (std::size_t i = 0; i < bytes.size(); ++i)
    if (bytes[i] == '\0') ++zeros[i % 2];
  if (zeros[0] > bytes.size() / 4) return Utf16{false, true};
  if (zeros[1] > bytes.size() / 4) return Utf16{false, false};
  return std::nullopt;
}

std::string utf8FromUtf16(std::string_view bytes, const Utf16& kind) {
  std::string text;
  const bool bigEndian = kind.bigEndian;
  for (std::size_t i = kind.hasMark ? 2 : 0; i + 1 < bytes.size(); i += 2) {
    const auto high = static_cast<unsigned char>(bytes[i + (bigEndian ? 0 : 1)]);
    const auto low = static_cast<unsigned char>(bytes[i + (bigEndian ? 1 : 0)]);
    appendUtf8(text, static_cast<char32_t>(high * 256 + low));
  }
  return text;
}

class Mender {
 public:
  Mender(std::string bytes, std::string_view file, Findings& findings)
      : bytes_(std::move(bytes)), file_(file), findings_(findings) {}

  std::string mended() {
    mendEncoding();
    mendLineEnds();
    return std::move(bytes_);
  }

 private:
  void mendEncoding() {
    if (const auto utf16 = utf16Of(bytes_)) {
      find(inUtf16, std::string("fichier en UTF-16") + (utf16->hasMark ? "" : " sans BOM") +
                        " : il doit être en Windows-1252 (ANSI)");
      bytes_ = fromUtf8(utf8FromUtf16(bytes_, *utf16), true);
    } else if (bytes_.starts_with(utf8Mark)) {
      find(inUtf8, "fichier en UTF-8 avec BOM : il doit être en Windows-1252 (ANSI)");
      bytes_ = fromUtf8(std::string_view(bytes_).substr(utf8Mark.size()), true);
    } else if (mostLinesAreUtf8()) {
      find(inUtf8, "fichier en UTF-8 : il doit être en Windows-1252 (ANSI)");
      bytes_ = fromUtf8(bytes_, true);
    } else {
      bytes_ = fromUtf8(bytes_, false);
    }
  }

  bool mostLinesAreUtf8() const {
    int balance = 0;
    eachLine(bytes_, [&](std::string_view line) {
      if (std::all_of(line.begin(), line.end(), isAscii)) return;
      const auto characters = utf8Characters(line);
      balance += characters && looksLikeUtf8(*characters) ? 1 : -1;
    });
    return balance > 0;
  }

  // Turns the lines that are in UTF-8 into bytes of the code page. Finds each one, unless all of the file is.
  std::string fromUtf8(std::string_view text, bool all) {
    std::string bytes;
    bytes.reserve(text.size());
    std::int32_t number = 0;
    eachLine(text, [&](std::string_view line) {
      ++number;
      const auto characters = utf8Characters(line);
      if (!characters || !(all || looksLikeUtf8(*characters))) {
        bytes += line;
        return;
      }
      if (!all)
        find(inUtf8, "texte en UTF-8 dans un fichier en Windows-1252", number,
             static_cast<std::int32_t>(std::find_if_not(line.begin(), line.end(), isAscii) - line.begin()) + 1);
      appendLine(bytes, *characters, number);
    });
    return bytes;
  }

  void appendLine(std::string& bytes, const std::u32string& characters, std::int32_t number) {
    std::int32_t column = 0;
    for (const char32_t character : characters) {
      ++column;
      const auto byte = toWindows1252(character);
      bytes += byte.value_or('?');
      if (byte) continue;
      std::string shown;
      appendUtf8(shown, character);
      find(noCharacter, "le caractère « " + shown + " » n'existe pas en Windows-1252", number, column);
    }
  }

  void mendLineEnds() {
    mendDoubledReturns();
    std::ptrdiff_t old = 0;
    for (std::size_t i = 0; i < bytes_.size(); ++i) old += isOldLineEnd(i);
    const bool throughout = old > std::count(bytes_.begin(), bytes_.end(), '\n');
    if (throughout) find(oldLineEnd, "fins de ligne anciennes (CR seul) : il faut LF ou CR LF");
    std::int32_t line = 1;
    std::size_t start = 0;
    for (std::size_t i = 0; i < bytes_.size(); ++i) {
      if (isOldLineEnd(i)) {
        const bool endsRecord = throughout || isRecordBehind(i);
        if (!throughout)
          find(oldLineEnd,
               std::string("fin de ligne ancienne (CR seul)") +
                   (endsRecord ? " : il faut LF ou CR LF" : " au milieu de la ligne"),
               line, static_cast<std::int32_t>(i - start) + 1);
        bytes_[i] = endsRecord ? '\n' : ' ';
      }
      if (bytes_[i] == '\n') {
        ++line;
        start = i + 1;
      }
    }
  }

  // CR CR LF, which comes of a conversion done twice.
  void mendDoubledReturns() {
    std::string kept;
    kept.reserve(bytes_.size());
    std::int32_t number = 0;
    std::int32_t first = 0;
    std::int32_t doubled = 0;
    eachLine(bytes_, [&](std::string_view line) {
      ++number;
      const bool isDoubled = line.ends_with("\r\r\n");
      if (isDoubled && doubled++ == 0) first = number;
      kept.append(line.substr(0, line.size() - (isDoubled ? 2 : 0)));
      if (isDoubled) kept += '\n';
    });
    if (doubled > 0)
      find(oldLineEnd,
           "CR CR LF au bout " + (doubled == 1 ? "de la ligne" : "de " + std::to_string(doubled) + " lignes") +
               " : il faut LF ou CR LF",
           first);
    bytes_ = std::move(kept);
  }

  // Whether up to the end of the line there are as many fields as the title has, or nothing.
  bool isRecordBehind(std::size_t i) const {
    const auto title = std::string_view(bytes_).substr(0, bytes_.find_first_of("\r\n"));
    const auto line = std::string_view(bytes_).substr(i + 1, bytes_.find_first_of("\r\n", i + 1) - i - 1);
    const auto fields = std::count(title.begin(), title.end(), ';');
    return line.empty() || (fields > 0 && std::count(line.begin(), line.end(), ';') >= fields);
  }

  bool isOldLineEnd(std::size_t i) const {
    return bytes_[i] == '\r' && (i + 1 == bytes_.size() || bytes_[i + 1] != '\n');
  }

  // Each with its line feed.
  template <class Told>
  static void eachLine(std::string_view text, Told told) {
    while (!text.empty()) {
      const auto length = std::min(text.find('\n'), text.size() - 1) + 1;
      told(text.substr(0, length));
      text.remove_prefix(length);
    }
  }

  void find(const FindingKind& kind, std::string text, std::int32_t line = 1, std::int32_t column = 1) {
    findings_.add(kind, {.file = file_, .line = line, .column = column}, std::move(text));
  }

  std::string bytes_;
  std::string_view file_;
  Findings& findings_;
};

}  // namespace

std::string mendedBytes(std::string bytes, std::string_view file, Findings& findings) {
  return Mender(std::move(bytes), file, findings).mended();
}

}  // namespace orvane
