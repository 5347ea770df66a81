#include "shell/rtf_words.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "shell/rtf_reader.h"

namespace orvane {
namespace {

using Parameter = std::optional<std::int32_t>;
using Reader = RtfReader;
using Deed = void (*)(Reader&, Parameter);

constexpr std::int32_t longestMeasure = 31680;

bool isOn(Parameter p) { return p.value_or(1) != 0; }
std::int32_t indent(Parameter p) { return std::clamp(p.value_or(0), -longestMeasure, longestMeasure); }
std::int32_t space(Parameter p) { return std::clamp(p.value_or(0), 0, longestMeasure); }
std::uint8_t colourPart(Parameter p) { return static_cast<std::uint8_t>(std::clamp(p.value_or(0), 0, 255)); }

std::int32_t halfPoints(Parameter p) {
  const std::int32_t size = p.value_or(0);
  return size <= 0 ? RtfCharacterState{}.halfPoints : std::min(size, 3276);
}

template <RtfDestination destination>
void sendTo(Reader& reader, Parameter) {
  reader.state.destination = destination;
}

template <RichAlignment alignment>
void align(Reader& reader, Parameter) {
  reader.state.paragraph.format.alignment = alignment;
}

void underline(Reader& reader, Parameter p) { reader.state.character.underline = isOn(p); }
void endParagraph(Reader& reader, Parameter) { reader.endParagraph(); }

void markOldBullet(Reader& reader, Parameter) {
  if (reader.state.destination == RtfDestination::OldList) reader.state.paragraph.bullet = true;
}

// The text of a list's marker is set apart only where there is a text around it.
void startMarker(Reader& reader, Parameter) {
  if (reader.state.destination == RtfDestination::Document) reader.state.destination = RtfDestination::Marker;
}

const std::unordered_map<std::string_view, std::string_view> texts = {
    {"~", "\u00A0"},       {"_", "\u2011"},       {"-", "\u00AD"},    {"\t", "\t"},       {"tab", "\t"},
    {"line", "\n"},        {"page", "\n"},        {"bullet", "•"},    {"endash", "–"},    {"emdash", "—"},
    {"lquote", "‘"},       {"rquote", "’"},       {"ldblquote", "“"}, {"rdblquote", "”"}, {"emspace", "\u2003"},
    {"enspace", "\u2002"}, {"qmspace", "\u2005"},
};

// Groups that are no text of the document.
const std::unordered_set<std::string_view> passedOver = {
    "stylesheet", "info",    "filetbl", "pict",    "fldinst",  "header",     "headerl", "headerr", "headerf",
    "footer",     "footerl", "footerr", "footerf", "footnote", "nonshppict", "tc",      "xe"};

const std::unordered_map<std::string_view, Deed> deeds = {
    // Groups whose text goes elsewhere
    {"*", [](Reader& r, Parameter) { r.starNextWord(); }},
    {"fonttbl", sendTo<RtfDestination::FontTable>},
    {"colortbl", sendTo<RtfDestination::ColourTable>},
    {"pntext", startMarker},
    {"listtext", startMarker},
    {"pn", sendTo<RtfDestination::OldList>},
    {"pnlvlblt", markOldBullet},

    // Tables of the head
    {"deff", [](Reader& r, Parameter p) { r.setDefaultFont(p.value_or(0)); }},
    {"red", [](Reader& r, Parameter p) { r.setColourPart(&RichColour::red, colourPart(p)); }},
    {"green", [](Reader& r, Parameter p) { r.setColourPart(&RichColour::green, colourPart(p)); }},
    {"blue", [](Reader& r, Parameter p) { r.setColourPart(&RichColour::blue, colourPart(p)); }},

    // Characters
    {"plain", [](Reader& r, Parameter) { r.resetCharacters(); }},
    {"b", [](Reader& r, Parameter p) { r.state.character.bold = isOn(p); }},
    {"i", [](Reader& r, Parameter p) { r.state.character.italic = isOn(p); }},
    {"v", [](Reader& r, Parameter p) { r.state.character.hidden = isOn(p); }},
    {"ul", underline},
    {"ulw", underline},
    {"uld", underline},
    {"uldb", underline},
    {"uldash", underline},
    {"ulnone", [](Reader& r, Parameter) { r.state.character.underline = false; }},
    {"fs", [](Reader& r, Parameter p) { r.state.character.halfPoints = halfPoints(p); }},
    {"cf", [](Reader& r, Parameter p) { r.state.character.colour = p.value_or(0); }},
    {"f", [](Reader& r, Parameter p) { r.state.character.font = p.value_or(0); }},
    {"uc", [](Reader& r, Parameter p) { r.state.fallbackLength = std::clamp(p.value_or(1), 0, 16); }},
    {"u", [](Reader& r, Parameter p) { r.putUnicode(p.value_or(0)); }},

    // Paragraphs
    {"pard", [](Reader& r, Parameter) { r.state.paragraph = {}; }},
    {"par", endParagraph},
    {"sect", endParagraph},
    {"nestcell", endParagraph},
    {"\r", endParagraph},
    {"\n", endParagraph},
    {"ql", align<RichAlignment::Left>},
    {"qr", align<RichAlignment::Right>},
    {"qc", align<RichAlignment::Centre>},
    {"qj", align<RichAlignment::Justified>},
    {"li", [](Reader& r, Parameter p) { r.state.paragraph.format.leftIndent = indent(p); }},
    {"fi", [](Reader& r, Parameter p) { r.state.paragraph.format.firstLineIndent = indent(p); }},
    {"sb", [](Reader& r, Parameter p) { r.state.paragraph.format.spaceBefore = space(p); }},
    {"sa", [](Reader& r, Parameter p) { r.state.paragraph.format.spaceAfter = space(p); }},

    // Tables
    {"intbl", [](Reader& r, Parameter p) { r.state.paragraph.inTable = isOn(p); }},
    {"trowd", [](Reader& r, Parameter) { r.startRow(); }},
    {"cellx", [](Reader& r, Parameter p) { r.addEdge(indent(p)); }},
    {"cell", [](Reader& r, Parameter) { r.endCell(); }},
    {"row", [](Reader& r, Parameter) { r.endRow(); }},
};

}  // namespace

void obeyRtfWord(RtfReader& reader, std::string_view word, std::optional<std::int32_t> parameter) {
  if (const auto text = texts.find(word); text != texts.end())
    reader.putText(text->second);
  else if (passedOver.contains(word))
    reader.state.destination = RtfDestination::Nowhere;
  else if (const auto deed = deeds.find(word); deed != deeds.end())
    deed->second(reader, parameter);
}

}  // namespace orvane
