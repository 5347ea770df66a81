#pragma once

#include "surface/control.h"

namespace orvane {

// Shows a rich text file, or a plain text in its place.
class RichTextBox : public Control {
 public:
  using Control::Control;

  // Shows the HTML that the reader makes of the bytes of a file. Fails when they cannot be read or understood.
  void LoadFile(const std::string& path, std::string (*reader)(std::string_view bytes));
  // UTF-8; one of both is empty.
  const std::string& Html() const { return html_; }
  const std::string& Text() const { return text_; }
  void setText(std::string text);

  std::string_view kind() const override { return "texte mis en forme"; }

 private:
  std::string html_;
  std::string text_;
};

}  // namespace orvane
