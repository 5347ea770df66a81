#include "surface/rich_text_box.h"

#include "surface/desktop.h"

namespace orvane {

void RichTextBox::LoadFile(const std::string& path, std::string (*reader)(std::string_view bytes)) {
  std::string html = reader(form().desktop().world().files.read(path));
  text_.clear();
  store(html_, std::move(html));
}

void RichTextBox::setText(std::string text) {
  html_.clear();
  store(text_, std::move(text));
}

}  // namespace orvane
