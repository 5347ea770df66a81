#include "check/printed_box.h"

#include <algorithm>
#include <sstream>

#include "sheet/composition_sides.h"

namespace orvane {

PrintedBox::PrintedBox(frmFeuille& sheet, const Shape& box) {
  auto& picture = box.holder() == &sheet.pctRecto ? sheet.pctRecto : sheet.pctVerso;
  float points = workingSize;
  for (const auto& print : sheet.log.printed) {
    const bool isInside = print.picture == &picture && print.x == box.Left() && print.y >= box.Top() &&
                          print.y < box.Top() + box.Height();
    if (!isInside || wordsOf(print.text).empty()) continue;
    lines.push_back(print.text);
    points = print.points;
  }
  for (const auto& loss : sheet.log.lost)
    if (loss.shape == box.id()) lost = loss.words;
  if (lost.empty()) return;
  const float former = picture.FontSize();
  picture.setFontSize(points);
  wordTooWide = picture.TextWidth(firstLostWord()) > box.Width();
  picture.setFontSize(former);
}

std::string PrintedBox::lastWord() const { return lines.empty() ? std::string() : wordsOf(lines.back()).back(); }

std::vector<std::string> wordsOf(const std::string& text) {
  std::vector<std::string> words;
  std::istringstream stream(text);
  for (std::string word; std::getline(stream, word, ' ');)
    if (!word.empty()) words.push_back(word);
  return words;
}

}  // namespace orvane
