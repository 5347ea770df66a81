#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "surface/control.h"
#include "surface/failure.h"

namespace orvane {

// Controls of one kind under one name, reached by an index from 0: txtCaract(3).
template <class C>
class Family {
 public:
  Family(Place place, const std::string& name, int count, const typename C::Design& design = {}) : name_(name) {
    for (int i = 0; i < count; ++i) add(place, design);
  }
  Family(Place place, const std::string& name, const std::vector<typename C::Design>& designs) : name_(name) {
    for (const auto& design : designs) add(place, design);
  }

  // Fails with an index that the family does not have.
  C& operator()(int index) { return members_[checked(index)]; }
  const C& operator()(int index) const { return members_[checked(index)]; }

  int size() const { return static_cast<int>(members_.size()); }
  auto begin() { return members_.begin(); }
  auto end() { return members_.end(); }

 private:
  void add(Place place, const typename C::Design& design) {
    members_.emplace_back(place, name_, design);
    members_.back().setIndex(size() - 1);
  }
  std::size_t checked(int index) const { return offsetOf(index, 0, size(), "de contrôle", name_); }

  std::string name_;
  std::deque<C> members_;
};

}  // namespace orvane
