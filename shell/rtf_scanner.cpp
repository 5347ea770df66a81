#include "shell/rtf_scanner.h"

#include <algorithm>

namespace orvane {
namespace {

using Kind = RtfToken::Kind;

constexpr std::int32_t largestParameter = 1'000'000'000;

// Not those of <cctype>: bytes above 127 are none of these, in any locale.
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

int hexDigit(char c) {
  if (isDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool isText(char c) { return c == '\t' || (static_cast<unsigned char>(c) >= 0x20 && c != 0x7F); }

RtfToken byteToken(char c) { return {Kind::Byte, {}, {}, c}; }

}  // namespace

RtfToken RtfScanner::next() {
  while (!rest_.empty()) {
    const char c = rest_.front();
    drop(1);
    if (c == '{') return {Kind::Open, {}, {}, 0};
    if (c == '}') return {Kind::Close, {}, {}, 0};
    if (c == '\\') {
      if (auto token = afterBackslash()) return *token;
    } else if (isText(c)) {
      return byteToken(c);
    }
  }
  return {};
}

std::optional<RtfToken> RtfScanner::afterBackslash() {
  if (rest_.empty()) return {};
  const char c = rest_.front();
  if (isLetter(c)) return word();
  const std::string_view symbol = rest_.substr(0, 1);
  drop(1);
  if (c == '\'') return hexByte();
  if (c == '\\' || c == '{' || c == '}') return byteToken(c);
  return RtfToken{Kind::Word, symbol, {}, 0};
}

std::optional<RtfToken> RtfScanner::hexByte() {
  if (rest_.size() < 2) return {};
  const int high = hexDigit(rest_[0]);
  const int low = hexDigit(rest_[1]);
  if (high < 0 || low < 0) return {};
  drop(2);
  const char byte = static_cast<char>(high * 16 + low);
  if (!isText(byte)) return {};
  return byteToken(byte);
}

RtfToken RtfScanner::word() {
  const auto end = std::find_if_not(rest_.begin(), rest_.end(), isLetter);
  RtfToken token{Kind::Word, rest_.substr(0, static_cast<std::size_t>(end - rest_.begin())), {}, 0};
  drop(token.word.size());
  token.parameter = parameter();
  if (rest_.starts_with(' ')) drop(1);
  if (token.word == "bin") drop(static_cast<std::size_t>(std::max(0, token.parameter.value_or(0))));
  return token;
}

std::optional<std::int32_t> RtfScanner::parameter() {
  const bool negative = rest_.starts_with('-');
  const std::size_t sign = negative ? 1 : 0;
  if (rest_.size() <= sign || !isDigit(rest_[sign])) return {};
  drop(sign);
  std::int64_t value = 0;
  for (; !rest_.empty() && isDigit(rest_.front()); drop(1))
    value = std::min<std::int64_t>(value * 10 + (rest_.front() - '0'), largestParameter);
  return static_cast<std::int32_t>(negative ? -value : value);
}

void RtfScanner::drop(std::size_t count) { rest_.remove_prefix(std::min(count, rest_.size())); }

}  // namespace orvane
