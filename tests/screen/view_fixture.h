#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "screen/form_view.h"
#include "tests/screen/hands.h"
#include "tests/screen/likeness.h"
#include "tests/support/fakes.h"
#include "tests/support/sample_form.h"

namespace orvane::test {

// The sample form in a window of its own, and a user who has a mouse and a keyboard.
class ViewFixture : public ::testing::Test, protected TestWorld<> {
 protected:
  using Deed = std::function<void()>;
  // What the user or the code does, and the events that it gives.
  struct Step {
    Deed deed;
    std::string events;
  };

  ViewFixture();

  template <class Widget = QWidget>
  Widget& find(const char* name) {
    auto* widget = window.findChild<Widget*>(name);
    EXPECT_TRUE(widget) << name;
    return *widget;
  }
  std::string events() { return std::exchange(log, {}); }
  std::string eventsAfter(const Deed& deed) {
    events();
    deed();
    turn();
    return events();
  }
  // One after another. Each leaves every widget showing what its control holds.
  void play(const std::vector<Step>& steps);

  // Steps.
  Deed clicked(const char* name) {
    return [this, name] { click(find(name)); };
  }
  // At the focus where no widget is named.
  Deed pressed(Qt::Key key, const char* name = nullptr, Qt::KeyboardModifiers modifiers = {}) {
    return [this, key, name, modifiers] {
      QTest::keyClick(name ? &find(name) : QApplication::focusWidget(), key, modifiers);
    };
  }
  Deed typed(const char* name, const char* text) {
    return [this, name, text] { QTest::keyClicks(&find(name), text); };
  }
  Deed nothing() {
    return [] {};
  }

  std::string log;
  Desktop desktop{world()};
  User user{desktop};
  ScreenDoor door{desktop, user};
  std::shared_ptr<Sample> form = std::make_shared<Sample>(desktop, log);
  QWidget window;
  std::unique_ptr<FormView> view;
};

}  // namespace orvane::test
