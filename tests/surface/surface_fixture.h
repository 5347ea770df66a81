#pragma once

#include <gtest/gtest.h>
#include <memory>

#include "surface/user.h"
#include "tests/support/fakes.h"
#include "tests/support/refusal.h"
#include "tests/support/sample_form.h"

namespace orvane::test {

// A desktop with sample forms, and a user in front of it.
class Surface : public testing::Test, protected TestWorld<> {
 protected:
  // Opens a window and gives it up to the desktop: it is freed as soon as it is closed.
  Sample& open(std::string caption = "", Form::Role role = Form::Role::Child, Handlers handlers = {}) {
    const auto form = make(std::move(caption), role, std::move(handlers));
    desktop.perform([&] { form->Show(); });
    return *form;
  }
  std::shared_ptr<Sample> make(std::string caption, Form::Role role = Form::Role::Child, Handlers on = {}) {
    return std::make_shared<Sample>(desktop, log, std::move(caption), role, std::move(on));
  }

  // What happened since the last call.
  std::string events() { return std::exchange(log, {}); }
  std::string eventsAfter(const std::function<void()>& act) {
    events();
    act();
    return events();
  }
  Log told() { return std::exchange(dialogs.log, {}); }
  // The captions of the loaded forms.
  std::string openForms() const {
    std::string captions;
    for (const auto& form : desktop.Forms()) captions += form->Caption() + " ";
    return captions;
  }

  std::string log;
  Desktop desktop{world()};
  User user{desktop};
};

}  // namespace orvane::test
