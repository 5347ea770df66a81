#pragma once

#include <QLabel>

#include "screen/view.h"
#include "surface/frame.h"

namespace orvane {

// A box around other controls: a group box, or a plain one where the frame has no caption.
class FrameView final : public View {
 public:
  FrameView(Frame& frame, QWidget& box, FormView& form);

 private:
  void show() override {}
};

// A picture that is stored with the program.
class ImageView final : public View {
 public:
  ImageView(Image& image, QLabel& label, FormView& form);

 private:
  void show() override {}
};

}  // namespace orvane
