#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/rich_text_builder.h"
#include "shell/rtf_scanner.h"
#include "shell/rtf_state.h"

namespace orvane {

// Reads one rich text file. The public part is what the control words do (rtf_words.h).
class RtfReader {
 public:
  explicit RtfReader(std::string_view bytes) : scanner_(bytes) {}

  RichText read();

  RtfState state;

  void setDefaultFont(std::int32_t number);
  void resetCharacters();
  void setColourPart(std::uint8_t RichColour::*part, std::uint8_t value);
  void starNextWord() { starred_ = true; }
  void putText(std::string_view text);
  // The parameter of the word for a Unicode character: UTF-16, negative from 32768 on, or a whole character.
  void putUnicode(std::int32_t value);

  // These act on the document only, not in the groups that go elsewhere.
  void endParagraph();
  void endCell();
  void endRow();
  void startRow();
  void addEdge(std::int32_t edge);

 private:
  void take(const RtfToken& token);
  void openGroup();
  void closeGroup();
  void obey(const RtfToken& token);
  bool passFallback();
  void putCharacter(char32_t character);
  void putPendingSurrogate();
  void ensureRun();
  void completeParagraph();
  void addFontText(std::string_view text);
  void keepFont();
  void keepColour();
  RichCharacterFormat format() const;
  bool inDocument() const { return state.destination == RtfDestination::Document; }

  RtfScanner scanner_;
  RichTextBuilder builder_;
  std::vector<RtfState> outer_;
  std::size_t tooDeep_ = 0;  // open groups beyond those that have a state of their own
  bool starred_ = false;
  std::int32_t fallbackLeft_ = 0;
  char32_t highSurrogate_ = 0;
  RtfCharacterState runState_;
  std::int32_t defaultFont_ = 0;
  std::map<std::int32_t, std::string> fonts_;
  std::string fontName_;
  std::vector<std::optional<RichColour>> colours_;
  std::optional<RichColour> colour_;
};

}  // namespace orvane
