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

QImage load(const fs::path& path) {
  return QImage(QString::fromStdString(path.string())).convertToFormat(QImage::Format_RGB888);
}

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

  void expectApproved(const fs::path& written, const fs::path& approved);
};

void Bitmaps::expectApproved(const fs::path& written, const fs::path& approved) {
  const QImage image = load(written);
  if (std::getenv("ORVANE_REBASELINE")) {
    fs::create_directories(approved.parent_path());
    image.save(QString::fromStdString(approved.string()));
  }
  ASSERT_TRUE(fs::exists(approved)) << "not approved yet: " << approved.filename();
  const bool recto = written.stem().string().ends_with("_1");
  EXPECT_EQ(firstDifference(load(approved), image, recto), "") << approved.filename();
}

TEST(GoldenScripts, PlayAsApproved) {
  const auto scripts = goldenScripts();
  ASSERT_FALSE(scripts.empty());
  for (const auto& script : scripts) {
    const ScratchFolder folder(script);
    expectApproved(script.expected, goldenText(played(script), folder));
  }
}

// The bitmaps of the example characters beside the approved ones: tests/bitmaps/SCRIPT/FILE.png.
// ORVANE_REBASELINE=1 approves what is written now.
TEST_F(Bitmaps, OfTheExamplesAreAsApproved) {
  int bitmaps = 0;
  for (const auto& script : goldenScripts()) {
    if (script.script.parent_path().filename() != "examples") continue;
    const ScratchFolder folder(script);
    const GoldenOutput output = played(script);
    ASSERT_EQ(output.status, 0) << output.errors;
    for (const auto& entry : fs::directory_iterator("Perso")) {
      ++bitmaps;
      expectApproved(entry.path(), sourceFolder() / "tests/bitmaps" / script.name /
                                       entry.path().filename().replace_extension(".png"));
    }
  }
  EXPECT_EQ(bitmaps, 12);
}

}  // namespace
}  // namespace orvane::test
