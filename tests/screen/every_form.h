#pragma once

#include <functional>
#include <memory>

#include "editor/frmContact.h"
#include "sheet/frmFeuille.h"
#include "shell/FrmReadMe.h"
#include "shell/frmSplash.h"
#include "tests/screen/desktop_fixture.h"

namespace orvane::test {

// Each form in a window of its own, on the screen.
class EveryForm : public DesktopFixture {
 protected:
  using Check = std::function<void(Form&, QWidget&)>;

  void forEach(const Check& check) {
    Form& character = newCharacter();
    check(character, *windows.childOf(character)->widget());
    for (const auto& form : std::initializer_list<std::shared_ptr<Form>>{
             std::make_shared<frmFeuille>(globals()), std::make_shared<FrmReadMe>(run.desktop()),
             std::make_shared<frmContact>(globals()), std::make_shared<frmSplash>(run.desktop())}) {
      form->Show();
      turn();
      auto* child = windows.childOf(*form);
      check(*form, child ? *child->widget() : *windows.dialogOf(*form));
    }
  }

  // Once for each live tab of a form that has tabs.
  void forEachPage(const Check& check) {
    forEach([&](Form& form, QWidget& window) {
      auto* tabs = dynamic_cast<TabControl*>(form.find("SSTabPerso", {}));
      for (int tab = 0; tab < (tabs ? 6 : 1); ++tab) {
        if (tabs) tabs->setTab(tab);
        turn();
        check(form, window);
      }
    });
  }
};

}  // namespace orvane::test
