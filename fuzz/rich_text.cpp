#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/require.h"
#include "shell/rtf_reader.h"
#include "surface/failure.h"
#include "surface/text.h"

namespace orvane::fuzz {
namespace {

// A page of rich text: tags that are known, closed in their order, with attributes that end.
class Page {
 public:
  explicit Page(std::string_view html) : rest_(html) {}

  void check() {
    while (!rest_.empty()) {
      const auto start = rest_.find('<');
      require(rest_.substr(0, start).find('"') == std::string_view::npos, "text has no quotes of its own");
      if (start == std::string_view::npos) break;
      rest_.remove_prefix(start + 1);
      takeTag(cut('>'));
    }
    require(open_.empty(), "every tag is closed");
  }

 private:
  std::string_view cut(char end) {
    const auto length = rest_.find(end);
    require(length != std::string_view::npos, "every tag ends");
    const auto part = rest_.substr(0, length);
    rest_.remove_prefix(length + 1);
    return part;
  }

  void takeTag(std::string_view tag) {
    require(tag.find('<') == std::string_view::npos, "no tag begins within another");
    if (tag == "br") return;
    if (tag.starts_with('/')) {
      require(!open_.empty() && open_.back() == tag.substr(1), "tags close in their order");
      return open_.pop_back();
    }
    const auto name = tag.substr(0, tag.find(' '));
    bool known = false;
    for (const std::string_view one : {"body", "p", "span", "table", "tr", "td"}) known = known || one == name;
    require(known, "no other tags");
    open_.push_back(name);
  }

  std::string_view rest_;
  std::vector<std::string_view> open_;
};

}  // namespace
}  // namespace orvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace orvane;
  std::string html;
  try {
    html = RtfReader::html({reinterpret_cast<const char*>(bytes), size});
  } catch (const Failure& failure) {
    fuzz::require(charactersOf(failure.what()).has_value(), "a reason is a text");
    return 0;
  }
  fuzz::require(charactersOf(html).has_value() || html.find("\uFFFD") != std::string::npos, "the page is a text");
  fuzz::Page(html).check();
  return 0;
}
