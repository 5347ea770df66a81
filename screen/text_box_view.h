#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "screen/view.h"
#include "surface/text_box.h"

namespace orvane {

// A text box of one line. One that is read only looks like a value, unless it bears a mark.
class LineEditView final : public View {
 public:
  LineEditView(TextBox& box, QLineEdit& edit, FormView& form);

 private:
  void show() override;

  TextBox& box_;
  QLineEdit& edit_;
};

// A text box of several lines: CR LF in the control is a line break on the screen and the other way round. One that is
// read only and closed is shown as such, and can still be read.
class MultiLineView final : public View {
 public:
  MultiLineView(TextBox& box, QPlainTextEdit& edit, FormView& form);

 private:
  void show() override;
  bool isOpen() const override { return box_.readOnly() || box_.Enabled(); }
  void typed();

  TextBox& box_;
  QPlainTextEdit& edit_;
};

}  // namespace orvane
