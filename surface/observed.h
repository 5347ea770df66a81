#pragma once

#include <algorithm>
#include <functional>
#include <vector>

namespace orvane {

// What observers watch. Any of them may come or go while they are told.
template <class Observer>
class Observed {
 public:
  void watch(Observer& observer) { observers_.push_back(&observer); }
  void unwatch(Observer& observer) { std::erase(observers_, &observer); }

 protected:
  // Calls a function of every observer: tell(&Observer::shown, form).
  template <class News, class... About>
  void tell(News news, About&... about) {
    const auto watching = observers_;
    for (auto* observer : watching)
      if (std::find(observers_.begin(), observers_.end(), observer) != observers_.end())
        std::invoke(news, observer, about...);
  }
  void unwatchAll() { observers_.clear(); }

 private:
  std::vector<Observer*> observers_;
};

}  // namespace orvane
