#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/rich_text_html.h"
#include "shell/rtf_token.h"

namespace orvane {

class RtfReader {
 public:
  // The bytes of a rich text file (RTF) as HTML, in time linear to their number. A colour stands as "color:#1f3864;
  // first in its attribute, and nothing else of the HTML looks like that. Damage is read over: what can be understood
  // is shown. Fails where the bytes do not begin as a rich text file does, and where there is more than a window can
  // show.
  static std::string html(std::string_view bytes);

 private:
  // Where the text of a group goes.
  enum class Destination { Document, Nowhere, FontTable, ColourTable, Marker, OldList };

  struct Characters {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool hidden = false;
    std::int32_t halfPoints = 24;  // 1 to 3276
    std::int32_t colour = 0;       // position in the colour table
    std::int32_t font = 0;         // number in the font table
    bool operator==(const Characters&) const = default;
  };

  // What a group inherits, may change, and gives back at its end.
  struct Group {
    Destination destination = Destination::Document;
    Characters characters;
    RichParagraph paragraph;
    std::int32_t fallbackLength = 1;  // characters after a Unicode one, for readers that do not know it
  };

  using Colour = std::array<char, 3>;  // red, green, blue

  explicit RtfReader(std::string_view bytes) : rest_(bytes) {}

  std::string read();
  void take(const RtfToken& token);
  void openGroup();
  void closeGroup();
  bool passFallback();
  void obey(const RtfToken& token);
  // Does what a control word or symbol says (rtf_words.cpp). Words that are not known do nothing.
  void obeyWord(std::string_view word, std::optional<std::int32_t> parameter);

  void startMarker();
  void putText(std::string_view text);
  void putCharacter(char32_t character);
  // The parameter of the word for a Unicode character: UTF-16, negative from 32768 on, or a whole character.
  void putUnicode(std::int32_t value);
  void putPendingSurrogate();
  void addFontText(std::string_view text);
  void keepFont();
  void keepColour();
  const std::string& style();
  std::string newStyle() const;
  void endParagraph();
  void endCell();
  bool inDocument() const { return group_.destination == Destination::Document; }

  std::string_view rest_;
  RichTextHtml html_;
  Group group_;
  std::vector<Group> outer_;
  std::size_t tooDeep_ = 0;  // open groups beyond those that have a state of their own
  bool starred_ = false;
  std::int32_t fallbackLeft_ = 0;
  char32_t highSurrogate_ = 0;
  std::int32_t defaultFont_ = 0;
  std::map<std::int32_t, std::string> fonts_;
  std::string fontName_;
  std::vector<std::string> colours_;  // RRGGBB; empty: whatever colour text has on the screen
  Colour colour_ = {};
  std::optional<Characters> styled_;  // what style_ was made from
  std::string style_;
};

}  // namespace orvane
