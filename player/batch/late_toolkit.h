#pragma once

#include <optional>

#include <QGuiApplication>

#include "canvas/qt_pictures.h"
#include "paper/qt_paper.h"

namespace orvane {

// The toolkit starts when it is first needed: a run without a sheet goes without, and processes part before it.
class LateToolkit {
 public:
  // argv outlives this.
  explicit LateToolkit(char** argv) : argv_(argv) {}

  void start();

 private:
  int names_ = 1;  // the toolkit gets the name of the program and none of its arguments
  char** argv_;
  std::optional<QGuiApplication> application_;
};

class LatePictures final : public Pictures {
 public:
  explicit LatePictures(LateToolkit& toolkit) : toolkit_(toolkit) {}

  std::unique_ptr<Canvas> open(std::string_view name) override;

 private:
  LateToolkit& toolkit_;
  QtPictures pictures_;
};

class LatePaper final : public Paper {
 public:
  explicit LatePaper(LateToolkit& toolkit) : toolkit_(toolkit) {}

  std::string sheet(const PrintedSheet& sheet) override;
  std::string contactSheet(const std::vector<PrintedSheet>& sheets) override;

 private:
  LateToolkit& toolkit_;
  QtPaper paper_;
};

}  // namespace orvane
