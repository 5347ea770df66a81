#pragma once

#include <memory_resource>
#include <string>
#include <string_view>
#include <utility>

namespace orvane {

// A text of a record: UTF-8 that stands elsewhere, for as long as its Texts or for good, and becomes a string of its
// own wherever one is asked for.
class DataText : public std::string_view {
 public:
  using std::string_view::string_view;
  operator std::string() const { return std::string(data(), size()); }  // NOLINT(google-explicit-constructor)

  friend std::string operator+(const DataText& left, std::string_view right) { return std::string(left).append(right); }
  friend std::string operator+(std::string left, const DataText& right) { return std::move(left.append(right)); }
};

// Where the texts of the records stand, one behind the other: a piece of memory for each would cost a large file half
// of its time.
class Texts {
 public:
  DataText keep(std::string_view text) {
    auto* const place = static_cast<char*>(memory_.allocate(text.size(), 1));
    return {place, text.copy(place, text.size())};
  }

 private:
  std::pmr::monotonic_buffer_resource memory_;
};

}  // namespace orvane
