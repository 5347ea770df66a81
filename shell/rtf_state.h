#pragma once

#include <cstdint>

#include "shell/rich_text.h"

namespace orvane {

// Where the text of a group goes.
enum class RtfDestination { Document, Nowhere, FontTable, ColourTable, Marker, OldList };

struct RtfCharacterState {
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool hidden = false;
  std::int32_t halfPoints = 24;
  std::int32_t colour = 0;  // position in the colour table
  std::int32_t font = 0;    // number in the font table
  bool operator==(const RtfCharacterState&) const = default;
};

struct RtfParagraphState {
  RichParagraphFormat format;
  bool inTable = false;
  bool bullet = false;
};

// What a group inherits, may change, and gives back at its end.
struct RtfState {
  RtfDestination destination = RtfDestination::Document;
  RtfCharacterState character;
  RtfParagraphState paragraph;
  std::int32_t fallbackLength = 1;  // characters after a Unicode one, for readers that do not know it
};

}  // namespace orvane
