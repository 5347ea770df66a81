#include "shell/rtf_token.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace orvane {
namespace {

using Kind = RtfToken::Kind;

// Not that of <cctype>: no byte above 127 is one, in any locale.
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool isText(char c) { return c == '\t' || (static_cast<unsigned char>(c) >= 0x20 && c != 0x7F); }

std::string_view cut(std::string_view& rest, std::size_t count) {
  const auto front = rest.substr(0, count);
  rest.remove_prefix(front.size());
  return front;
}

std::optional<RtfToken> byteToken(char c) {
  if (!isText(c)) return {};
  return RtfToken{Kind::Byte, {}, {}, c};
}

std::optional<RtfToken> hexByte(std::string_view& rest) {
  unsigned char byte = 0;
  const auto digits = rest.substr(0, 2);
  if (std::from_chars(digits.begin(), digits.end(), byte, 16).ptr != digits.begin() + 2) return {};
  cut(rest, 2);
  return byteToken(static_cast<char>(byte));
}

std::optional<std::int32_t> parameter(std::string_view& rest) {
  using Limits = std::numeric_limits<std::int32_t>;
  std::int32_t value = 0;
  const bool negative = rest.starts_with('-');
  const auto [end, error] = std::from_chars(rest.begin(), rest.end(), value);
  if (error == std::errc::invalid_argument) return {};
  cut(rest, static_cast<std::size_t>(end - rest.begin()));
  if (error == std::errc::result_out_of_range) return negative ? Limits::min() : Limits::max();
  return value;
}

RtfToken wordToken(std::string_view& rest) {
  const auto end = std::find_if_not(rest.begin(), rest.end(), isLetter);
  RtfToken token{Kind::Word, cut(rest, static_cast<std::size_t>(end - rest.begin())), {}, 0};
  token.parameter = parameter(rest);
  if (rest.starts_with(' ')) cut(rest, 1);
  if (token.word == "bin") cut(rest, static_cast<std::size_t>(std::max(0, token.parameter.value_or(0))));
  return token;
}

std::optional<RtfToken> afterBackslash(std::string_view& rest) {
  if (rest.empty()) return {};
  if (isLetter(rest.front())) return wordToken(rest);
  const auto symbol = cut(rest, 1);
  if (symbol == "'") return hexByte(rest);
  if (symbol == "\\" || symbol == "{" || symbol == "}") return byteToken(symbol.front());
  return RtfToken{Kind::Word, symbol, {}, 0};
}

}  // namespace

RtfToken nextRtfToken(std::string_view& rest) {
  while (!rest.empty()) {
    const char c = cut(rest, 1).front();
    if (c == '{') return {Kind::Open, {}, {}, 0};
    if (c == '}') return {Kind::Close, {}, {}, 0};
    if (const auto token = c == '\\' ? afterBackslash(rest) : byteToken(c)) return *token;
  }
  return {};
}

}  // namespace orvane
