#pragma once

#include <QLabel>

#include "screen/view.h"
#include "surface/frame.h"
#include "surface/label.h"

namespace orvane {

class LabelView final : public View {
 public:
  LabelView(Label& label, QLabel& text, FormView& form);

 private:
  void show() override;

  Label& label_;
  QLabel& text_;
};

// A picture that is stored with the program.
class ImageView final : public View {
 public:
  ImageView(Image& image, QLabel& label, FormView& form);

 private:
  void show() override {}
};

}  // namespace orvane
