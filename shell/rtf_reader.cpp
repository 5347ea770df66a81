#include "shell/rtf_reader.h"

#include <utility>

#include "shell/rtf_characters.h"
#include "shell/rtf_words.h"
#include "surface/text.h"

namespace orvane {
namespace {

using Kind = RtfToken::Kind;

constexpr std::size_t deepestGroup = 500;
// Names are copied into every run, so a damaged one must not be long.
constexpr std::size_t longestFontName = 63;

bool isHighSurrogate(std::int32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(std::int32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

RichText RtfReader::read() {
  for (auto token = scanner_.next(); token.kind != Kind::End; token = scanner_.next()) {
    take(token);
    if (outer_.empty()) break;
  }
  state.destination = RtfDestination::Document;
  putPendingSurrogate();
  if (builder_.hasRun() || builder_.hasMarker()) endParagraph();
  return builder_.take();
}

void RtfReader::take(const RtfToken& token) {
  if (token.kind == Kind::Open) return openGroup();
  if (token.kind == Kind::Close) return closeGroup();
  if (passFallback()) return;
  if (token.kind == Kind::Word) return obey(token);
  starred_ = false;
  putText(byteText(token.byte));
}

void RtfReader::openGroup() {
  putPendingSurrogate();
  starred_ = false;
  fallbackLeft_ = 0;
  if (outer_.size() < deepestGroup)
    outer_.push_back(state);
  else
    ++tooDeep_;
}

void RtfReader::closeGroup() {
  putPendingSurrogate();
  starred_ = false;
  fallbackLeft_ = 0;
  if (tooDeep_ > 0) {
    --tooDeep_;
    return;
  }
  if (state.destination == RtfDestination::FontTable) keepFont();
  // An old list is described in a group but holds for the paragraph around it.
  if (state.destination == RtfDestination::OldList) outer_.back().paragraph.bullet = state.paragraph.bullet;
  // The last group's paragraph is still to be ended, with the format that it has.
  if (outer_.size() > 1) state = outer_.back();
  outer_.pop_back();
}

void RtfReader::obey(const RtfToken& token) {
  const bool starred = std::exchange(starred_, false);
  if (state.destination == RtfDestination::Nowhere) return;
  if (starred && token.word != "pn")
    state.destination = RtfDestination::Nowhere;
  else
    obeyRtfWord(*this, token.word, token.parameter);
}

// What follows a Unicode character for the sake of older readers is passed over, each word as one character.
bool RtfReader::passFallback() {
  if (fallbackLeft_ == 0) return false;
  --fallbackLeft_;
  return true;
}

void RtfReader::putCharacter(char32_t character) {
  std::string text;
  appendUtf8(text, character);
  putText(text);
}

void RtfReader::putUnicode(std::int32_t value) {
  fallbackLeft_ = state.fallbackLength;
  const std::int32_t unit = value < 0 ? value + 0x10000 : value;
  if (isHighSurrogate(unit)) {
    putPendingSurrogate();
    highSurrogate_ = static_cast<char32_t>(unit);
  } else if (isLowSurrogate(unit) && highSurrogate_) {
    const char32_t high = std::exchange(highSurrogate_, 0);
    putCharacter(0x10000 + ((high - 0xD800) << 10) + static_cast<char32_t>(unit - 0xDC00));
  } else if (unit < 0 || unit >= 0x20 || unit == '\t') {
    putCharacter(unit < 0 ? replacementCharacter : static_cast<char32_t>(unit));
  }
}

void RtfReader::putPendingSurrogate() {
  if (std::exchange(highSurrogate_, 0)) putCharacter(replacementCharacter);
}

void RtfReader::putText(std::string_view text) {
  putPendingSurrogate();
  switch (state.destination) {
    case RtfDestination::Document:
      if (state.character.hidden) return;
      ensureRun();
      return builder_.addText(text);
    case RtfDestination::FontTable:
      return addFontText(text);
    case RtfDestination::ColourTable:
      return text == ";" ? keepColour() : void();
    case RtfDestination::Marker:
      return builder_.addMarker(text);
    case RtfDestination::OldList:
    case RtfDestination::Nowhere:
      return;
  }
}

void RtfReader::ensureRun() {
  if (builder_.hasRun() && runState_ == state.character) return;
  builder_.startRun(format());
  runState_ = state.character;
}

RichCharacterFormat RtfReader::format() const {
  const auto& character = state.character;
  RichCharacterFormat format{character.bold, character.italic, character.underline, character.halfPoints, {}, {}};
  const auto colour = static_cast<std::size_t>(character.colour);
  if (colour < colours_.size()) format.colour = colours_[colour];
  if (const auto font = fonts_.find(character.font); font != fonts_.end()) format.font = font->second;
  return format;
}

void RtfReader::setDefaultFont(std::int32_t number) { defaultFont_ = state.character.font = number; }

void RtfReader::resetCharacters() {
  state.character = {};
  state.character.font = defaultFont_;
}

void RtfReader::addFontText(std::string_view text) {
  if (text == ";")
    keepFont();
  else if (fontName_.size() + text.size() <= longestFontName)
    fontName_ += text;
}

void RtfReader::keepFont() {
  if (!fontName_.empty()) fonts_[state.character.font] = std::exchange(fontName_, {});
}

void RtfReader::setColourPart(std::uint8_t RichColour::*part, std::uint8_t value) {
  if (state.destination != RtfDestination::ColourTable) return;
  if (!colour_) colour_.emplace();
  (*colour_).*part = value;
}

void RtfReader::keepColour() { colours_.push_back(std::exchange(colour_, {})); }

void RtfReader::completeParagraph() {
  if (!builder_.hasRun()) ensureRun();
  if (state.paragraph.bullet && !builder_.hasMarker()) builder_.addMarker("•");
}

void RtfReader::endParagraph() {
  if (!inDocument()) return;
  completeParagraph();
  builder_.endParagraph(state.paragraph.format, state.paragraph.inTable);
}

void RtfReader::endCell() {
  if (!inDocument()) return;
  completeParagraph();
  builder_.endCell(state.paragraph.format);
}

void RtfReader::endRow() {
  if (inDocument()) builder_.endRow();
}

void RtfReader::startRow() {
  if (inDocument()) builder_.startRow();
}

void RtfReader::addEdge(std::int32_t edge) {
  if (inDocument()) builder_.addEdge(edge);
}

}  // namespace orvane
