#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

#include <QImage>

#include "sheet/frmFeuille.h"
#include "tests/canvas/gui.h"
#include "tests/support/played_script.h"
#include "tests/support/source_folder.h"
#include "tests/support/test_run.h"

namespace orvane::test {
namespace {

namespace fs = std::filesystem;

[[maybe_unused]] const auto* const gui = ::testing::AddGlobalTestEnvironment(new Gui);

class Bitmaps : public SmallRun {
 protected:
  // The box of the paper form that a pixel lies in.
  std::string boxAt(QPoint pixel, bool recto) {
    const auto sheet = std::make_shared<frmFeuille>(globals());
    for (const auto* control : sheet->controls()) {
      const auto* shape = dynamic_cast<const Shape*>(control);
      if (!shape || shape->holder() != (recto ? &sheet->pctRecto : &sheet->pctVerso)) continue;
      if (QRectF(shape->Left(), shape->Top(), shape->Width(), shape->Height()).contains(QPointF(pixel) * 15))
        return shape->id();
    }
    return "no box";
  }

  // Empty when both are alike, pixel by pixel.
  std::string firstDifference(const QImage& approved, const QImage& written, bool recto) {
    if (approved.size() != written.size()) return "another size";
    for (int y = 0; y < written.height(); ++y)
      for (int x = 0; x < written.width(); ++x)
        if (approved.pixel(x, y) != written.pixel(x, y))
          return "from pixel " + std::to_string(x) + ", " + std::to_string(y) + " on, in " + boxAt({x, y}, recto);
    return {};
  }

  void expectSame(const QImage& shown, const fs::path& approved) {
    const QImage written = shown.convertToFormat(QImage::Format_RGB888);
    const QString file = QString::fromStdString(approved);
    if (std::getenv("ORVANE_REBASELINE")) {
      fs::create_directories(approved.parent_path());
      written.save(file);
    }
    const bool recto = approved.stem().string().ends_with("_1");
    const QImage kept = QImage(file).convertToFormat(QImage::Format_RGB888);
    EXPECT_EQ(firstDifference(kept, written, recto), "") << approved;
  }
};

TEST(GoldenScripts, PlayAsApproved) {
  for (const auto& script : goldenScripts()) {
    const auto transcript = PlayedScript(script).text();
    expectApproved(script.expected, transcript);
    // Whatever was approved: an example is what a player starts from.
    EXPECT_TRUE(!script.isExample || transcript.ends_with("--- exit status 0\n")) << script.expected;
  }
}

// The bitmaps of the example characters beside the approved ones: tests/bitmaps/SCRIPT/FILE.png.
// ORVANE_REBASELINE=1 approves what is written now.
TEST_F(Bitmaps, OfTheExamplesAreAsApproved) {
  int bitmaps = 0;
  for (const auto& script : goldenScripts()) {
    if (!script.isExample) continue;
    const PlayedScript played(script);
    for (const auto& [path, bytes] : played.bitmaps()) {
      const fs::path file = fs::path(path).filename().replace_extension(".png");
      expectSame(QImage::fromData(QByteArray::fromStdString(bytes)),
                 sourceFolder() / "tests/bitmaps" / script.name / file);
      ++bitmaps;
    }
  }
  EXPECT_EQ(bitmaps, 12);
}

}  // namespace
}  // namespace orvane::test
