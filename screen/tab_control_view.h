#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <QTabWidget>

#include "screen/view.h"
#include "surface/tab_control.h"

namespace orvane {

// Qt changes the tab only after the control did: when the current tab is disabled it would else walk to another one.
class TabControlView final : public View {
 public:
  TabControlView(TabControl& tabs, QTabWidget& widget, FormView& form);

  QWidget& focusWidget() override;
  // Marks the tabs with fields that the check has coloured, and says of a closed one why.
  void settle() override;

 private:
  void show() override;
  // A letter that a button of the open tab bears is that button's alone.
  void shareLetters() const;
  Colour worstOn(int tab) const;
  bool barEvent(QEvent& event);
  bool pressed(const QMouseEvent& event);
  bool keyPressed(const QKeyEvent& event);
  void pick(int tab);
  // To the next tab on that side that is open.
  void pickBeside(int step);

  TabControl& tabs_;
  QTabWidget& widget_;
};

}  // namespace orvane
