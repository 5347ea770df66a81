#include "shell/rtf_reader.h"

#include <utility>

#include "data/excerpt.h"
#include "data/windows_1252.h"
#include "surface/failure.h"
#include "surface/text.h"

namespace orvane {
namespace {

using Kind = RtfToken::Kind;

constexpr std::size_t mostBytes = 10'000'000;
constexpr std::size_t deepestGroup = 500;
// Names are copied into every run, so a damaged one must not be long.
constexpr std::size_t longestFontName = 63;
constexpr char32_t replacementCharacter = 0xFFFD;

bool isHighSurrogate(std::int32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(std::int32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

std::string RtfReader::html(std::string_view bytes) {
  if (!bytes.starts_with("{\\rtf")) throw Failure("Ce n'est pas un fichier de texte enrichi (RTF).");
  if (bytes.size() > mostBytes) throw Failure("Il dépasse 10 Mo.");
  return RtfReader(bytes).read();
}

std::string RtfReader::read() {
  for (auto token = nextRtfToken(rest_); token.kind != Kind::End; token = nextRtfToken(rest_)) {
    take(token);
    if (outer_.empty()) break;
  }
  group_.destination = Destination::Document;
  putPendingSurrogate();
  if (html_.inParagraph()) endParagraph();
  return html_.take();
}

void RtfReader::take(const RtfToken& token) {
  const bool border = token.kind == Kind::Open || token.kind == Kind::Close;
  if (!border && passFallback()) return;
  if (token.kind == Kind::Word) return obey(token);
  starred_ = false;
  if (border) {
    putPendingSurrogate();
    fallbackLeft_ = 0;
    return token.kind == Kind::Open ? openGroup() : closeGroup();
  }
  if (inWindows1252(token.byte))
    putText(fromWindows1252({&token.byte, 1}));
  else
    putCharacter(replacementCharacter);
}

void RtfReader::openGroup() {
  if (outer_.size() < deepestGroup)
    outer_.push_back(group_);
  else
    ++tooDeep_;
}

void RtfReader::closeGroup() {
  if (tooDeep_ > 0) {
    --tooDeep_;
    return;
  }
  if (group_.destination == Destination::FontTable) keepFont();
  // An old list is described in a group but holds for the paragraph around it.
  if (group_.destination == Destination::OldList) outer_.back().paragraph.bullet = group_.paragraph.bullet;
  // The last group's paragraph is still to be ended, with the format that it has.
  if (outer_.size() > 1) group_ = outer_.back();
  outer_.pop_back();
}

// What follows a Unicode character for the sake of older readers is passed over, each word as one character.
bool RtfReader::passFallback() {
  if (fallbackLeft_ == 0) return false;
  --fallbackLeft_;
  return true;
}

void RtfReader::obey(const RtfToken& token) {
  const bool starred = std::exchange(starred_, false);
  if (group_.destination == Destination::Nowhere) return;
  if (starred && token.word != "pn")
    group_.destination = Destination::Nowhere;
  else
    obeyWord(token.word, token.parameter);
}

// The text of a list's marker is set apart only where there is a text around it.
void RtfReader::startMarker() {
  if (inDocument()) group_.destination = Destination::Marker;
}

void RtfReader::putText(std::string_view text) {
  putPendingSurrogate();
  switch (group_.destination) {
    case Destination::Document:
      return group_.characters.hidden ? void() : html_.addText(style(), text);
    case Destination::FontTable:
      return addFontText(text);
    case Destination::ColourTable:
      return text == ";" ? keepColour() : void();
    case Destination::Marker:
      return html_.addMarker(text);
    case Destination::OldList:
    case Destination::Nowhere:
      return;
  }
}

void RtfReader::putCharacter(char32_t character) {
  std::string text;
  appendUtf8(text, character);
  putText(text);
}

void RtfReader::putUnicode(std::int32_t value) {
  fallbackLeft_ = group_.fallbackLength;
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

void RtfReader::addFontText(std::string_view text) {
  if (text == ";")
    keepFont();
  else if (fontName_.size() + text.size() <= longestFontName && text.find_first_of("<>&\"'\\") == text.npos)
    fontName_ += text;
}

void RtfReader::keepFont() {
  if (!fontName_.empty()) fonts_[group_.characters.font] = std::exchange(fontName_, {});
  styled_.reset();
}

void RtfReader::keepColour() {
  std::string& name = colours_.emplace_back();
  if (colour_ != Colour{})
    for (const char part : colour_) name += hexadecimal(part);
  colour_ = {};
  styled_.reset();
}

const std::string& RtfReader::style() {
  if (styled_ != group_.characters) {
    style_ = newStyle();
    styled_ = group_.characters;
  }
  return style_;
}

// What differs from the page's own style.
std::string RtfReader::newStyle() const {
  const Characters& characters = group_.characters;
  const auto colour = static_cast<std::size_t>(characters.colour);
  const auto font = fonts_.find(characters.font);
  std::string style;
  if (colour < colours_.size() && !colours_[colour].empty()) style += "color:#" + colours_[colour] + ';';
  if (font != fonts_.end()) style += "font-family:'" + font->second + "';";
  if (const auto size = characters.halfPoints; size != Characters{}.halfPoints)
    style += "font-size:" + std::to_string(size / 2) + (size % 2 ? ".5pt;" : "pt;");
  if (characters.bold) style += "font-weight:700;";
  if (characters.italic) style += "font-style:italic;";
  if (characters.underline) style += "text-decoration:underline;";
  return style;
}

void RtfReader::endParagraph() {
  if (inDocument()) html_.endParagraph(group_.paragraph, style());
}

void RtfReader::endCell() {
  if (inDocument()) html_.endCell(group_.paragraph, style());
}

}  // namespace orvane
