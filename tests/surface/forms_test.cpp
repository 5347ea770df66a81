#include "tests/surface/surface_fixture.h"

namespace orvane::test {
namespace {

using Forms = Surface;

const auto close = [](Sample& form) { form.Unload(); };

TEST_F(Forms, ClosingGivesTheWindowBeforeItBack) {
  Sample& a = open("A");
  open("B");
  Sample& c = open("C");
  EXPECT_EQ(eventsAfter([&] {
              for (int i = 0; i < 2; ++i) user.activate(a);
              user.close(a);
              user.close(c);
            }),
            "A/active A/end C/active A/freed C/end B/active C/freed");
  EXPECT_EQ(openForms(), "B ");
}

TEST_F(Forms, ClosingTheFrameClosesAllWindowsFirst) {
  Sample& frame = open("cadre", Form::Role::Frame);
  Sample& a = open("A");
  open("B");
  user.activate(a);
  EXPECT_NE(refusal([&] { user.activate(frame); }), "");
  EXPECT_EQ(eventsAfter([&] { user.close(frame); }), "A/end B/end cadre/end A/freed B/freed cadre/freed")
      << "none is activated on the way";
  EXPECT_EQ(openForms(), "");
}

// A closed window runs no handlers.
TEST_F(Forms, HandlersMayCloseTheirOwnWindow) {
  const auto closeAndGoOn = [](Sample& form) {
    form.Unload();
    form.button.setEnabled(false);
    form.list.setListIndex(2);
  };
  Sample& typed = open("", Form::Role::Child, {{"text=fin", closeAndGoOn}});
  EXPECT_EQ(eventsAfter([&] { user.type(typed.text, "fin"); }), "+text text=fin end freed");
  Sample& left = open("", Form::Role::Child, {{"-text", close}});
  user.focus(left.text);
  EXPECT_EQ(eventsAfter([&] { user.click(left.button); }), "-text end freed");
  const auto load = [](Sample& form) {
    form.list.setListIndex(1);
    form.text.setText("ensuite");
  };
  EXPECT_EQ(eventsAfter([&] {
              open("", Form::Role::Child, {{"load", load}, {"list:deux", close}});
            }),
            "load list:deux end freed")
      << "it is never shown";
  EXPECT_EQ(eventsAfter([&] { open("", Form::Role::Child, {{"active", close}}); }), "load active end freed");
  EXPECT_EQ(openForms(), "");
  EXPECT_EQ(told(), Log{});
}

TEST_F(Forms, AFailedLoadLeavesNoFormBehind) {
  open("A");
  const auto fail = [](Sample& form) { form.list.setListIndex(9); };
  EXPECT_EQ(eventsAfter([&] { open("B", Form::Role::Child, {{"load", fail}}); }), "B/load B/freed");
  EXPECT_EQ(told(), Log{"failure|Pas d'entrée 9 dans list."});
  EXPECT_EQ(openForms(), "A ");
}

TEST_F(Forms, ClosingIsDoneOnceWhateverTheEndAsksFor) {
  Sample& a = open("A", Form::Role::Child, {{"end", close}});
  Sample& b = open("B", Form::Role::Child, {{"end", [](Sample&) { throw Failure("perdu"); }}});
  EXPECT_EQ(eventsAfter([&] {
              user.close(a);
              user.close(b);
            }),
            "A/end A/freed B/end B/freed");
  EXPECT_EQ(told(), Log{"failure|perdu"});
  EXPECT_EQ(openForms(), "");
}

TEST_F(Forms, AModalFormBlocksAllOthersUntilItIsClosed) {
  Sample& a = open("A");
  Log refused;
  dialogs.modal = [&](Form& form) {
    refused.push_back(refusal([&] { user.click(a.button); }));
    refused.push_back(refusal([&] { user.close(a); }));
    user.click(static_cast<Sample&>(form).button);
  };
  a.on["button"] = [&](Sample& own) {
    make("D", Form::Role::Dialog)->ShowModal();
    own.list.setListIndex(1);
  };
  EXPECT_EQ(eventsAfter([&] { user.click(a.button); }),
            "A/+button A/button D/load D/+button D/button D/end A/list:deux D/freed");
  EXPECT_EQ(refused, Log(2, "La fenêtre « D » attend d'abord une réponse."));
  EXPECT_EQ(desktop.modal(), nullptr);
}

TEST_F(Forms, AModalFormThatCannotBeRunBlocksNothing) {
  dialogs.modal = [](Form&) { throw Failure("pas d'écran"); };
  desktop.perform([&] { make("D", Form::Role::Dialog)->ShowModal(); });
  EXPECT_EQ(told(), Log{"failure|pas d'écran"});
  EXPECT_EQ(openForms(), "");
  EXPECT_EQ(desktop.modal(), nullptr);
}

TEST_F(Forms, ObserversHearWhatHappensToWindows) {
  struct Listener : DesktopObserver {
    std::string heard;
    void shown(Form& form) override { heard += "shown " + form.Caption() + ", "; }
    void unloaded(Form& form) override { heard += "unloaded " + form.Caption() + ", "; }
    void activated(Form& form) override { heard += "activated " + form.Caption() + ", "; }
    void captionChanged(Form& form) override { heard += "caption " + form.Caption() + ", "; }
    void refresh(Form& form) override { heard += "refresh " + form.Caption() + ", "; }
    void arrange(Arrangement how) override { heard += "arrange " + std::to_string(static_cast<int>(how)) + ", "; }
  } listener;
  Sample& a = open("A");
  desktop.watch(listener);
  Sample& b = open("B");
  for (int i = 0; i < 2; ++i) b.setCaption("C");
  b.Refresh();
  desktop.Arrange(Arrangement::Icons);
  user.close(b);
  desktop.unwatch(listener);
  user.close(a);
  EXPECT_EQ(listener.heard, "shown B, activated B, caption C, refresh C, arrange 3, unloaded C, activated A, ");
}

TEST_F(Forms, AClosedWindowTakesNoActs) {
  const auto form = make("A");
  const std::string notOpen = "La fenêtre « A » n'est pas ouverte.";
  EXPECT_EQ(refusal([&] { user.click(form->button); }), notOpen);
  form->Load();
  EXPECT_EQ(refusal([&] { user.click(form->button); }), notOpen) << "loaded, not shown";
  form->Show();
  form->Unload();
  form->Show();
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(refusal([&] { user.close(*form); }), notOpen);
}

}  // namespace
}  // namespace orvane::test
