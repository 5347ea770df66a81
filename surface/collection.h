#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "surface/failure.h"

namespace orvane {

// An ordered collection whose positions run from 1 to Count() without gaps.
template <class T>
class Collection {
 public:
  // Room for that many at once.
  void reserve(std::size_t count) { items_.reserve(count); }
  void Add(T item) { items_.push_back(std::move(item)); }

  // Both fail with a position outside 1 to Count().
  const T& Item(std::int32_t position) const { return items_[offset(position)]; }
  void Remove(std::int32_t position) { items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(offset(position))); }
  const T& operator()(std::int32_t position) const { return Item(position); }

  std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }

  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

 private:
  std::size_t offset(std::int32_t position) const {
    return offsetOf(position, 1, Count(), "d'élément", "la collection");
  }

  std::vector<T> items_;
};

}  // namespace orvane
