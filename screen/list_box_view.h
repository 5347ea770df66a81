#pragma once

#include <QListWidget>

#include "screen/view.h"
#include "surface/list_box.h"

namespace orvane {

class ListBoxView final : public View {
 public:
  ListBoxView(ListBox& box, QListWidget& list, FormView& form);

 private:
  void show() override;
  void showEntries();
  bool pressed(QEvent& event);
  void pick(int index);

  ListBox& box_;
  QListWidget& list_;
};

}  // namespace orvane
