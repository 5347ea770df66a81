#pragma once

#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "screen/form_view.h"
#include "tests/screen/application.h"
#include "tests/screen/plain_form.h"
#include "tests/support/fakes.h"
#include "tests/support/logged_dialogs.h"
#include "tests/support/memory_files.h"

namespace orvane::test {

// The plain form in a window of its own, and a user who has a mouse and a keyboard.
class ViewFixture : public ::testing::Test {
 protected:
  ViewFixture() {
    form->Show();
    PlainForm::layOut(window);
    view = std::make_unique<FormView>(*form, window, door);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    window.setFocus();
    form->events();
  }

  template <class Widget>
  Widget& find(const char* name) {
    auto* widget = window.findChild<Widget*>(name);
    EXPECT_TRUE(widget) << name;
    return *widget;
  }
  // One turn of the event loop, in which what has changed is shown.
  static void turn() { QCoreApplication::processEvents(); }
  std::string eventsAfter(const std::function<void()>& act) {
    form->events();
    act();
    turn();
    return form->events();
  }
  static void click(QWidget& widget, QPoint where = {}) {
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, where);
  }

 private:
  struct Application {
    Application() { needApplication(); }
  };
  Application application_;

 protected:
  LoggedDialogs dialogs;
  FakeClock clock;
  NoSettings settings;
  MemoryFiles files;
  BlankPictures pictures;
  Desktop desktop{World{dialogs, clock, settings, files, pictures}};
  ScreenDoor door{desktop};
  std::shared_ptr<PlainForm> form = std::make_shared<PlainForm>(desktop);
  QWidget window;
  std::unique_ptr<FormView> view;
};

}  // namespace orvane::test
