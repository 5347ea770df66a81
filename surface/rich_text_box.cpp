#include "surface/rich_text_box.h"

#include "surface/desktop.h"

namespace orvane {

void RichTextBox::LoadFile(const std::string& path) {
  std::string bytes = form().desktop().world().files.read(path);
  text_.clear();
  store(textRtf_, std::move(bytes));
}

void RichTextBox::setText(std::string text) {
  textRtf_.clear();
  store(text_, std::move(text));
}

}  // namespace orvane
