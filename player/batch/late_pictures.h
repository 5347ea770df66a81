#pragma once

#include <optional>

#include <QGuiApplication>

#include "canvas/qt_pictures.h"

namespace orvane {

// The toolkit starts with the first picture: a run without a sheet goes without, and processes part before it.
class LatePictures final : public Pictures {
 public:
  // argv outlives this.
  explicit LatePictures(char** argv) : argv_(argv) {}

  std::unique_ptr<Canvas> open(std::string_view name) override;

 private:
  int names_ = 1;  // the toolkit gets the name of the program and none of its arguments
  char** argv_;
  std::optional<QGuiApplication> application_;
  QtPictures pictures_;
};

}  // namespace orvane
