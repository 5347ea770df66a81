#include "tests/surface/surface_fixture.h"

namespace orvane::test {
namespace {

using Forms = Surface;

const auto close = [](Sample& form) { form.Unload(); };

TEST_F(Forms, ClosingGivesTheWindowBeforeItBack) {
  Sample& a = open("A");
  open("B");
  Sample& c = open("C");
  noted();
  for (int i = 0; i < 2; ++i) user.activate(a);
  user.close(a);
  user.close(c);
  EXPECT_EQ(openForms(), Log{"B"});
  EXPECT_EQ(noted(), (Log{"A: Form_Activate", "A: Form_Unload", "C: Form_Activate", "A: freed", "C: Form_Unload",
                          "B: Form_Activate", "C: freed"}));
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
  form.on["text.Change"] = [](Sample& own) {
    own.Unload();
    own.button.setEnabled(false);
    own.list.setListIndex(2);
  };
  noted();
  user.type(form.text, "fin");
  EXPECT_EQ(noted(), (Log{"text.GotFocus", "text.Change", "Form_Unload", "freed"}))
      << "a closed window runs no handlers";
}

TEST_F(Forms, LosingTheFocusMayCloseTheWindow) {
  Sample& form = open();
  user.focus(form.text);
  form.on["text.LostFocus"] = close;
  noted();
  user.click(form.button);
  EXPECT_EQ(noted(), (Log{"text.LostFocus", "Form_Unload", "freed"}));
}

TEST_F(Forms, LoadingMayCloseTheWindow) {
  const auto load = [](Sample& form) {
    form.list.setListIndex(1);
    form.text.setText("ensuite");
  };
  open("", Form::Role::Child, {{"Form_Load", load}, {"list.Click", close}});
  EXPECT_EQ(noted(), (Log{"Form_Load", "list.Click", "Form_Unload", "freed"})) << "it is never shown";
  EXPECT_EQ(openForms(), Log{});
  EXPECT_EQ(told(), Log{});
}

TEST_F(Forms, AFailedLoadLeavesNoFormBehind) {
  open("A");
  noted();
  open("B", Form::Role::Child, {{"Form_Load", [](Sample& form) { form.list.setListIndex(9); }}});
  EXPECT_EQ(told(), Log{"failure|Pas d'entrée 9 dans list."});
  EXPECT_EQ(noted(), (Log{"B: Form_Load", "B: freed"}));
  EXPECT_EQ(openForms(), Log{"A"});
}

TEST_F(Forms, ClosingIsDoneOnceWhateverTheEndAsksFor) {
  Sample& a = open("A", Form::Role::Child, {{"Form_Unload", close}});
  Sample& b = open("B", Form::Role::Child, {{"Form_Unload", [](Sample&) { throw Failure("perdu"); }}});
  noted();
  user.close(a);
  user.close(b);
  EXPECT_EQ(noted(), (Log{"A: Form_Unload", "A: freed", "B: Form_Unload", "B: freed"}));
  EXPECT_EQ(told(), Log{"failure|perdu"});
  EXPECT_EQ(openForms(), Log{});
}

TEST_F(Forms, BeingActivatedMayCloseTheWindow) {
  open("", Form::Role::Child, {{"Form_Activate", close}});
  EXPECT_EQ(noted(), (Log{"Form_Load", "Form_Activate", "Form_Unload", "freed"}));
}

TEST_F(Forms, AModalFormBlocksAllOthersUntilItIsClosed) {
  Sample& a = open("A");
  Log refused;
  dialogs.modal = [&](Form& form) {
    refused.push_back(refusal([&] { user.click(a.button); }));
    refused.push_back(refusal([&] { user.close(a); }));
    user.click(static_cast<Sample&>(form).button);
    log.push_back("answered");
  };
  a.on["button.Click"] = [&](Sample&) {
    make("D", Form::Role::Dialog)->ShowModal();
    log.push_back("back");
  };
  noted();
  user.click(a.button);
  EXPECT_EQ(refused, Log(2, "La fenêtre « D » attend d'abord une réponse."));
  EXPECT_EQ(noted(), (Log{"A: button.GotFocus", "A: button.Click", "D: Form_Load", "D: button.GotFocus",
                          "D: button.Click", "answered", "D: Form_Unload", "back", "D: freed"}));
  EXPECT_EQ(desktop.modal(), nullptr);
}

TEST_F(Forms, AModalFormThatCannotBeRunBlocksNothing) {
  dialogs.modal = [](Form&) { throw Failure("pas d'écran"); };
  desktop.perform([&] { make("D", Form::Role::Dialog)->ShowModal(); });
  EXPECT_EQ(told(), Log{"failure|pas d'écran"});
  EXPECT_EQ(openForms(), Log{});
  EXPECT_EQ(desktop.modal(), nullptr);
}

TEST_F(Forms, ObserversHearWhatHappensToWindows) {
  struct Listener : DesktopObserver {
    std::string heard;
    void shown(Form& form) override { heard += "shown " + form.Caption() + ", "; }
    void unloaded(Form& form) override { heard += "unloaded " + form.Caption() + ", "; }
    void activated(Form& form) override { heard += "activated " + form.Caption() + ", "; }
    void captionChanged(Form& form) override { heard += "caption " + form.Caption() + ", "; }
  } listener;
  Sample& a = open("A");
  desktop.watch(listener);
  Sample& b = open("B");
  for (int i = 0; i < 2; ++i) b.setCaption("C");
  user.close(b);
  desktop.unwatch(listener);
  user.close(a);
  EXPECT_EQ(listener.heard, "shown B, activated B, caption C, unloaded C, activated A, ");
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
