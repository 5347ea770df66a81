#include "surface/text.h"

#include <algorithm>
#include <memory>
#include <numeric>
#include <unicode/coll.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include "surface/failure.h"

namespace orvane {
namespace {

const icu::Collator& frenchCollator() {
  static const std::unique_ptr<icu::Collator> collator = [] {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> made(icu::Collator::createInstance(icu::Locale::getFrance(), status));
    if (U_FAILURE(status))
      throw Failure(std::string("Ordre alphabétique français introuvable : ") + u_errorName(status));
    return made;
  }();
  return *collator;
}

icu::UnicodeString unicode(std::string_view text) {
  return icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
}

bool startsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

}  // namespace

std::size_t characterCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCharacter));
}

std::string firstCharacters(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (; end < text.size(); ++end)
    if (startsCharacter(text[end]) && count-- == 0) break;
  return std::string(text.substr(0, end));
}

std::string shortened(std::string_view text, std::size_t count) {
  const std::string first = firstCharacters(text, count);
  return first.size() < text.size() ? first + "…" : first;
}

std::string lowerCase(std::string_view text) {
  std::string lower;
  unicode(text).toLower(icu::Locale::getFrance()).toUTF8String(lower);
  return lower;
}

std::string trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string_view cutLine(std::string_view& rest) {
  const auto end = rest.find('\n');
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (end != std::string_view::npos && line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

void appendUtf8(std::string& text, char32_t character) {
  char bytes[U8_MAX_LENGTH];
  std::size_t size = 0;
  bool unfit = false;
  U8_APPEND(bytes, size, sizeof bytes, character, unfit);
  if (unfit) return appendUtf8(text, U'\uFFFD');
  text.append(bytes, size);
}

std::optional<std::u32string> charactersOf(std::string_view text) {
  const icu::UnicodeString source = unicode(text);
  if (source.indexOf(u'\uFFFD') >= 0) return std::nullopt;
  std::u32string characters;
  for (int32_t i = 0; i < source.length(); i = source.moveIndex32(i, 1))
    characters += static_cast<char32_t>(source.char32At(i));
  return characters;
}

std::string sortKey(std::string_view text) {
  const icu::UnicodeString source = unicode(text);
  const auto& collator = frenchCollator();
  std::string key(static_cast<std::size_t>(collator.getSortKey(source, nullptr, 0)), '\0');
  collator.getSortKey(source, reinterpret_cast<uint8_t*>(key.data()), static_cast<int32_t>(key.size()));
  return key;
}

std::vector<std::size_t> alphabeticalOrder(const std::vector<std::string>& texts) {
  std::vector<std::string> keys;
  keys.reserve(texts.size());
  for (const auto& text : texts) keys.push_back(sortKey(text));
  std::vector<std::size_t> order(texts.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](auto a, auto b) { return keys[a] < keys[b]; });
  return order;
}

}  // namespace orvane
