#pragma once

#include "surface/control.h"

namespace orvane {

// Shows a rich text file, or a plain text in its place.
class RichTextBox : public Control {
 public:
  using Control::Control;

  // The bytes of the file as they are. Fails when it cannot be read.
  void LoadFile(const std::string& path);
  const std::string& TextRTF() const { return textRtf_; }
  // UTF-8; empty once a file was loaded.
  const std::string& Text() const { return text_; }
  void setText(std::string text);

  std::string_view kind() const override { return "texte mis en forme"; }

 private:
  std::string textRtf_;
  std::string text_;
};

}  // namespace orvane
