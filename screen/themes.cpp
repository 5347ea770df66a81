#include "screen/themes.h"

namespace orvane {
namespace {

struct Colours {
  QColor window, base, alternate, button, text, highlight, highlightedText, link, faint;
};

QPalette palette(const Colours& colours) {
  QPalette made(colours.button, colours.window);
  made.setColor(QPalette::Base, colours.base);
  made.setColor(QPalette::AlternateBase, colours.alternate);
  made.setColor(QPalette::ToolTipBase, colours.alternate);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::BrightText})
    made.setColor(role, colours.text);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    made.setColor(QPalette::Disabled, role, colours.faint);
  made.setColor(QPalette::PlaceholderText, colours.faint);
  made.setColor(QPalette::Highlight, colours.highlight);
  made.setColor(QPalette::HighlightedText, colours.highlightedText);
  made.setColor(QPalette::Link, colours.link);
  return made;
}

}  // namespace

const std::vector<Theme>& themes() {
  static const std::vector<Theme> all = {
      {"light",
       palette({"#efefef", "#ffffff", "#f7f7f7", "#efefef", "#000000", "#2f6fb0", "#ffffff", "#0b57a4", "#8a8a8a"})},
      {"dark",
       palette({"#2d2f33", "#1e2023", "#26282c", "#3a3d42", "#e8e8e8", "#2f6fb0", "#ffffff", "#7ab7ff", "#83868c"})},
      {"contrast",
       palette({"#000000", "#000000", "#101010", "#000000", "#ffffff", "#ffff00", "#000000", "#ffff00", "#9a9a9a"})},
  };
  return all;
}

}  // namespace orvane
