#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "shell/rtf_reader.h"

namespace orvane {
namespace {

using Parameter = std::optional<std::int32_t>;

constexpr std::int32_t longestMeasure = 31680;

bool isOn(Parameter p) { return p.value_or(1) != 0; }
std::int32_t indent(Parameter p) { return std::clamp(p.value_or(0), -longestMeasure, longestMeasure); }
std::int32_t space(Parameter p) { return std::clamp(p.value_or(0), 0, longestMeasure); }
std::int32_t halfPoints(Parameter p) { return p.value_or(0) > 0 ? std::min(*p, 3276) : 24; }
char colourPart(Parameter p) { return static_cast<char>(std::clamp(p.value_or(0), 0, 255)); }

const std::unordered_map<std::string_view, std::string_view> texts = {
    {"~", "\u00A0"},       {"_", "\u2011"},       {"-", "\u00AD"},    {"\t", "\t"},       {"tab", "\t"},
    {"line", "\n"},        {"page", "\n"},        {"bullet", "•"},    {"endash", "–"},    {"emdash", "—"},
    {"lquote", "‘"},       {"rquote", "’"},       {"ldblquote", "“"}, {"rdblquote", "”"}, {"emspace", "\u2003"},
    {"enspace", "\u2002"}, {"qmspace", "\u2005"},
};

const std::unordered_map<std::string_view, std::string_view> alignments = {
    {"ql", "left"}, {"qr", "right"}, {"qc", "center"}, {"qj", "justify"}};

// Groups that are no text of the document.
const std::unordered_set<std::string_view> passedOver = {
    "stylesheet", "info",    "filetbl", "pict",    "fldinst",  "header",     "headerl", "headerr", "headerf",
    "footer",     "footerl", "footerr", "footerf", "footnote", "nonshppict", "tc",      "xe"};

const std::unordered_set<std::string_view> paragraphEnds = {"par", "sect", "nestcell", "\r", "\n"};

}  // namespace

void RtfReader::obeyWord(std::string_view word, Parameter parameter) {
  static const std::unordered_map<std::string_view, bool Characters::*> switches = {
      {"b", &Characters::bold},         {"i", &Characters::italic},        {"v", &Characters::hidden},
      {"ul", &Characters::underline},   {"ulw", &Characters::underline},   {"uld", &Characters::underline},
      {"uldb", &Characters::underline}, {"uldash", &Characters::underline}};

  static const std::unordered_map<std::string_view, void (*)(RtfReader&, Parameter)> deeds = {
      // Groups whose text goes elsewhere
      {"*", [](auto& r, auto) { r.starred_ = true; }},
      {"fonttbl", [](auto& r, auto) { r.group_.destination = Destination::FontTable; }},
      {"colortbl", [](auto& r, auto) { r.group_.destination = Destination::ColourTable; }},
      {"pntext", [](auto& r, auto) { r.startMarker(); }},
      {"listtext", [](auto& r, auto) { r.startMarker(); }},
      {"pn", [](auto& r, auto) { r.group_.destination = Destination::OldList; }},
      {"pnlvlblt", [](auto& r, auto) { r.group_.paragraph.bullet = r.group_.destination == Destination::OldList; }},

      // Tables of the head
      {"deff", [](auto& r, auto p) { r.defaultFont_ = r.group_.characters.font = p.value_or(0); }},
      {"red", [](auto& r, auto p) { r.colour_[0] = colourPart(p); }},
      {"green", [](auto& r, auto p) { r.colour_[1] = colourPart(p); }},
      {"blue", [](auto& r, auto p) { r.colour_[2] = colourPart(p); }},

      // Characters
      {"plain", [](auto& r, auto) { (r.group_.characters = {}).font = r.defaultFont_; }},
      {"ulnone", [](auto& r, auto) { r.group_.characters.underline = false; }},
      {"fs", [](auto& r, auto p) { r.group_.characters.halfPoints = halfPoints(p); }},
      {"cf", [](auto& r, auto p) { r.group_.characters.colour = p.value_or(0); }},
      {"f", [](auto& r, auto p) { r.group_.characters.font = p.value_or(0); }},
      {"uc", [](auto& r, auto p) { r.group_.fallbackLength = std::clamp(p.value_or(1), 0, 16); }},
      {"u", [](auto& r, auto p) { r.putUnicode(p.value_or(0)); }},

      // Paragraphs
      {"pard", [](auto& r, auto) { r.group_.paragraph = {}; }},
      {"li", [](auto& r, auto p) { r.group_.paragraph.leftIndent = indent(p); }},
      {"fi", [](auto& r, auto p) { r.group_.paragraph.firstLineIndent = indent(p); }},
      {"sb", [](auto& r, auto p) { r.group_.paragraph.spaceBefore = space(p); }},
      {"sa", [](auto& r, auto p) { r.group_.paragraph.spaceAfter = space(p); }},

      // Tables
      {"intbl", [](auto& r, auto p) { r.group_.paragraph.inTable = isOn(p); }},
      {"trowd", [](auto& r, auto) { r.html_.startRow(); }},
      {"cellx", [](auto& r, auto p) { r.html_.addEdge(indent(p)); }},
      {"cell", [](auto& r, auto) { r.endCell(); }},
      {"row", [](auto& r, auto) { r.html_.endRow(); }},
  };

  if (const auto text = texts.find(word); text != texts.end()) return putText(text->second);
  if (const auto deed = deeds.find(word); deed != deeds.end()) return deed->second(*this, parameter);
  if (paragraphEnds.contains(word)) return endParagraph();
  if (passedOver.contains(word)) group_.destination = Destination::Nowhere;
  if (const auto name = alignments.find(word); name != alignments.end()) group_.paragraph.alignment = name->second;
  if (const auto flag = switches.find(word); flag != switches.end()) group_.characters.*flag->second = isOn(parameter);
}

}  // namespace orvane
