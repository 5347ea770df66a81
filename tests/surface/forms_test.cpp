#include "tests/surface/surface_fixture.h"

namespace orvane::test {
namespace {

using Forms = Surface;

const Hook close = [](Sample& form) { form.Unload(); };

TEST_F(Forms, ClosingGivesTheWindowBeforeItBack) {
  Sample& a = open("A");
  open("B");
  Sample& c = open("C");
  user.activate(a);
  user.activate(a);
  EXPECT_EQ(noted(), (Log{"A: Form_Load", "A: Form_Activate", "B: Form_Load", "B: Form_Activate", "C: Form_Load",
                          "C: Form_Activate", "A: Form_Activate"}));
  user.close(a);
  EXPECT_EQ(desktop.activeChild(), &c);
  user.close(c);
  EXPECT_EQ(openForms(), Log{"B"});
  EXPECT_EQ(noted(),
            (Log{"A: Form_Unload", "C: Form_Activate", "A: freed", "C: Form_Unload", "B: Form_Activate", "C: freed"}));
}

TEST_F(Forms, ClosingTheFrameClosesAllWindowsFirst) {
  Sample& frame = open("cadre", Form::Role::Frame);
  Sample& a = open("A");
  open("B");
  user.activate(a);
  noted();
  user.close(frame);
  EXPECT_EQ(openForms(), Log{});
  EXPECT_EQ(noted(),
            (Log{"A: Form_Unload", "B: Form_Unload", "cadre: Form_Unload", "A: freed", "B: freed", "cadre: freed"}))
      << "none is activated on the way";
}

TEST_F(Forms, AHandlerMayCloseItsOwnWindow) {
  Sample& form = open();
  form.then = [&form](const std::string& event) {
    if (event != "text.Change") return;
    form.Unload();
    form.button.setEnabled(false);
    form.list.setListIndex(2);
  };
  noted();
  user.type(form.text, "fin");
  EXPECT_EQ(noted(), (Log{"A: text.GotFocus", "A: text.Change", "A: Form_Unload", "A: freed"}))
      << "a closed window runs no handlers";
}

TEST_F(Forms, LosingTheFocusMayCloseTheWindow) {
  Sample& form = open();
  user.focus(form.text);
  form.then = [&form](const std::string& event) {
    if (event == "text.LostFocus") form.Unload();
  };
  noted();
  user.click(form.button);
  EXPECT_EQ(noted(), (Log{"A: text.LostFocus", "A: Form_Unload", "A: freed"}));
}

TEST_F(Forms, LoadingMayCloseTheWindow) {
  open("A", Form::Role::Child, {.load = [](Sample& form) {
         form.then = [&form](const std::string&) { form.Unload(); };
         form.list.setListIndex(1);
         form.text.setText("ensuite");
       }});
  EXPECT_EQ(noted(), (Log{"A: Form_Load", "A: list.Click", "A: Form_Unload", "A: freed"})) << "it is never shown";
  EXPECT_EQ(openForms(), Log{});
  EXPECT_EQ(desktop.activeChild(), nullptr);
  EXPECT_EQ(told(), Log{});
}

TEST_F(Forms, AFailedLoadLeavesNoFormBehind) {
  open("A");
  noted();
  open("B", Form::Role::Child, {.load = [](Sample& form) { form.list.setListIndex(9); }});
  EXPECT_EQ(told(), Log{"failure|Pas d'entrée 9 dans la liste list."});
  EXPECT_EQ(noted(), (Log{"B: Form_Load", "B: freed"}));
  EXPECT_EQ(openForms(), Log{"A"});
}

TEST_F(Forms, ClosingIsDoneOnceWhateverTheEndAsksFor) {
  Sample& a = open("A", Form::Role::Child, {.unload = close});
  Sample& b = open("B", Form::Role::Child, {.unload = [](Sample&) { throw Failure("perdu"); }});
  noted();
  user.close(a);
  user.close(b);
  EXPECT_EQ(noted(), (Log{"A: Form_Unload", "A: freed", "B: Form_Unload", "B: freed"}));
  EXPECT_EQ(told(), Log{"failure|perdu"});
  EXPECT_EQ(openForms(), Log{});
}

TEST_F(Forms, BeingActivatedMayCloseTheWindow) {
  open("A", Form::Role::Child, {.activate = close});
  EXPECT_EQ(noted(), (Log{"A: Form_Load", "A: Form_Activate", "A: Form_Unload", "A: freed"}));
}

TEST_F(Forms, AModalFormBlocksAllOthersUntilItIsClosed) {
  Sample& a = open("A");
  Log refused;
  dialogs.modal = [&](Form& form) {
    auto& dialog = static_cast<Sample&>(form);
    refused.push_back(refusal([&] { user.click(a.button); }));
    refused.push_back(refusal([&] { user.close(a); }));
    user.click(dialog.button);
    log.push_back("answered");
  };
  a.then = [&](const std::string& event) {
    if (event != "button.Click") return;
    make("D", Form::Role::Dialog)->ShowModal();
    log.push_back("back");
  };
  noted();
  user.click(a.button);
  EXPECT_EQ(refused, Log(2, "La fenêtre « D » attend d'abord une réponse."));
  EXPECT_EQ(noted(), (Log{"A: button.GotFocus", "A: button.Click", "D: Form_Load", "D: button.GotFocus",
                          "D: button.Click", "answered", "D: Form_Unload", "back", "D: freed"}));
  EXPECT_EQ(desktop.modal(), nullptr);
  EXPECT_EQ(refusal([&] { user.click(a.button); }), "");
}

TEST_F(Forms, AnInnerModalFormTakesOverFromTheOuterOne) {
  dialogs.modal = [&](Form& outer) {
    dialogs.modal = [&](Form& inner) {
      EXPECT_EQ(desktop.modal(), &inner);
      EXPECT_NE(refusal([&] { user.close(outer); }), "");
      user.close(inner);
    };
    make("inner", Form::Role::Dialog)->ShowModal();
    EXPECT_EQ(desktop.modal(), &outer);
  };
  make("outer", Form::Role::Dialog)->ShowModal();
  EXPECT_EQ(openForms(), Log{});
}

TEST_F(Forms, AModalFormThatCannotBeRunBlocksNothing) {
  Sample& a = open("A");
  dialogs.modal = [](Form&) { throw Failure("pas d'écran"); };
  desktop.perform([&] { make("D", Form::Role::Dialog)->ShowModal(); });
  EXPECT_EQ(told(), Log{"failure|pas d'écran"});
  EXPECT_EQ(openForms(), Log{"A"});
  EXPECT_EQ(refusal([&] { user.click(a.button); }), "");
}

TEST_F(Forms, ObserversHearWhatHappensToWindows) {
  struct Listener : DesktopObserver {
    Log heard;
    void note(const std::string& news, const Form& form) { heard.push_back(news + " " + form.Caption()); }
    void shown(Form& form) override { note("shown", form); }
    void unloaded(Form& form) override { note("unloaded", form); }
    void activated(Form& form) override { note("activated", form); }
    void captionChanged(Form& form) override { note("caption", form); }
  } listener;
  Sample& a = open("A");
  desktop.watch(listener);
  Sample& b = open("B");
  b.setCaption("C");
  b.setCaption("C");
  a.Show();
  user.close(b);
  desktop.unwatch(listener);
  user.close(a);
  EXPECT_EQ(listener.heard, (Log{"shown B", "activated B", "caption C", "shown A", "activated A", "unloaded C"}));
}

TEST_F(Forms, AClosedWindowTakesNoActs) {
  const auto form = make("A");
  EXPECT_NE(refusal([&] { user.click(form->button); }), "") << "not yet open";
  form->Show();
  form->Unload();
  form->Show();
  EXPECT_FALSE(form->isVisible());
  EXPECT_NE(refusal([&] { user.click(form->button); }), "");
  EXPECT_NE(refusal([&] { user.close(*form); }), "");
}

}  // namespace
}  // namespace orvane::test
