#include "sheet/print_layout.h"

#include "sheet/line_marker.h"

namespace orvane {
namespace {

// Words of a text, which only the blank separates; two blanks in a row stand around an empty word.
class Words {
 public:
  explicit Words(std::string_view text) : text_(text) {}

  bool usedUp() const { return text_.empty(); }
  std::string_view rest() const { return text_; }

  std::string_view take() {
    const auto blank = text_.find(' ');
    const auto word = text_.substr(0, blank);
    text_.remove_prefix(blank == std::string_view::npos ? text_.size() : blank + 1);
    return word;
  }

 private:
  std::string_view text_;
};

class LineBreaker {
 public:
  LineBreaker(std::string_view text, const LayoutBox& box, const TextMeasures& measures)
      : words_(text), box_(box), measures_(measures) {}

  PrintLayout run() {
    while (!words_.usedUp() || !sLine_.empty()) {
      const auto sWord = words_.take();
      if (!endsLine(sWord))
        append(sWord);
      else if (!flush(sWord))
        break;
    }
    layout_.rest = words_.rest();
    return std::move(layout_);
  }

 private:
  bool endsLine(std::string_view sWord) const {
    if (sWord == lineMarkerWord) return true;
    const float width = measures_.width(sLine_ + ' ' + std::string(sWord));
    return width > box_.width || cannotGrow(sWord, width);
  }

  // A used-up text fills its last line with blanks; blanks without a width would never fill it.
  bool cannotGrow(std::string_view sWord, float width) const {
    return words_.usedUp() && sWord.empty() && !(width > measures_.width(sLine_));
  }

  void append(std::string_view sWord) {
    if (!sLine_.empty()) sLine_ += ' ';
    sLine_ += sWord;
  }

  // False when the box takes no more.
  bool flush(std::string_view sWord) {
    if (measures_.width(sLine_) > box_.width) {
      lose(sLine_);
      loseFrom(sWord);
      return false;
    }
    placeLine();
    if ((box_.gap + measures_.height("")) * static_cast<float>(iLine_) > box_.height) {
      loseFrom(sWord);
      return false;
    }
    if (sWord != lineMarkerWord) sLine_ = sWord;
    return true;
  }

  void placeLine() {
    const float x = box_.right ? box_.left + box_.width - measures_.width(sLine_) : box_.left;
    const float y = box_.top + (box_.gap + measures_.height(sLine_)) * static_cast<float>(iLine_ - 1);
    layout_.lines.push_back({std::move(sLine_), x, y});
    sLine_.clear();
    ++iLine_;
  }

  void loseFrom(std::string_view sWord) {
    lose(sWord);
    for (Words left(words_.rest()); !left.usedUp();) lose(left.take());
  }

  void lose(std::string_view word) {
    if (word.empty() || word == lineMarkerWord) return;
    if (!layout_.lost.empty()) layout_.lost += ' ';
    layout_.lost += word;
  }

  Words words_;
  const LayoutBox& box_;
  const TextMeasures& measures_;
  PrintLayout layout_;
  std::string sLine_;
  int iLine_ = 1;
};

}  // namespace

PrintLayout layOut(std::string_view text, const LayoutBox& box, const TextMeasures& measures) {
  const std::string marked = withLineMarkers(text);
  return LineBreaker(marked, box, measures).run();
}

}  // namespace orvane
