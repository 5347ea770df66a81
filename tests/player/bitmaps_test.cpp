#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>

#include <QImage>

#include "data/reference_data.h"
#include "sheet/frmFeuille.h"
#include "surface/desktop.h"
#include "tests/player/played_script.h"
#include "tests/support/logged_dialogs.h"
#include "tests/support/memory_files.h"

// The bitmaps of the example characters beside the approved ones: tests/bitmaps/SCRIPT/FILE.png.
// ORVANE_REBASELINE=1 approves what is written now.
namespace orvane::test {
namespace {

namespace fs = std::filesystem;

constexpr int twipsPerPixel = 15;

QImage load(const fs::path& path) {
  return QImage(QString::fromStdString(path.string())).convertToFormat(QImage::Format_RGB888);
}

// The box of the paper form that a pixel lies in.
std::string boxAt(const QPoint& pixel, bool recto) {
  LoggedDialogs dialogs;
  FakeClock clock;
  NoSettings settings;
  MemoryFiles files;
  BlankPictures pictures;
  const ReferenceData data;
  Desktop desktop(World{dialogs, clock, settings, files, pictures});
  Globals globals(desktop, data);
  const auto sheet = std::make_shared<frmFeuille>(globals);
  const Control* side = recto ? &sheet->pctRecto : &sheet->pctVerso;
  for (const auto* control : sheet->controls()) {
    const auto* shape = dynamic_cast<const Shape*>(control);
    if (!shape || shape->holder() != side) continue;
    const QRectF box(shape->Left() / twipsPerPixel, shape->Top() / twipsPerPixel, shape->Width() / twipsPerPixel,
                     shape->Height() / twipsPerPixel);
    if (box.contains(pixel)) return shape->id();
  }
  return "no box";
}

// Empty when both are alike, pixel by pixel.
std::string firstDifference(const QImage& approved, const QImage& written, bool recto) {
  if (approved.size() != written.size()) return "another size";
  for (int y = 0; y < written.height(); ++y)
    for (int x = 0; x < written.width(); ++x)
      if (approved.pixel(x, y) != written.pixel(x, y)) {
        std::ostringstream report;
        report << "first at pixel " << x << ", " << y << ", in " << boxAt({x, y}, recto) << ": approved " << std::hex
               << (approved.pixel(x, y) & 0xFFFFFF) << ", written " << (written.pixel(x, y) & 0xFFFFFF);
        return report.str();
      }
  return {};
}

void expectApproved(const fs::path& written, const fs::path& approved) {
  const QImage image = load(written);
  if (std::getenv("ORVANE_REBASELINE")) {
    fs::create_directories(approved.parent_path());
    image.save(QString::fromStdString(approved.string()));
  }
  ASSERT_TRUE(fs::exists(approved)) << "not approved yet: " << approved.filename();
  EXPECT_EQ(firstDifference(load(approved), image, written.stem().string().ends_with("_1")), "") << approved.filename();
}

TEST(Bitmaps, OfTheExamplesAreAsApproved) {
  int bitmaps = 0;
  for (const auto& script : goldenScripts()) {
    if (script.script.parent_path().filename() != "examples") continue;
    const ScratchFolder folder(script);
    const GoldenOutput output = played(script);
    ASSERT_EQ(output.status, 0) << output.errors;
    for (const auto& entry : fs::directory_iterator("Perso")) {
      ++bitmaps;
      expectApproved(entry.path(), fs::path(ORVANE_SOURCE_DIR) / "tests/bitmaps" / script.name /
                                       entry.path().filename().replace_extension(".png"));
    }
  }
  EXPECT_EQ(bitmaps, 6);
}

// The comparison itself must see one pixel and name its box.
TEST(Bitmaps, ADifferenceIsToldByItsBox) {
  QImage approved(660, 1028, QImage::Format_RGB888);
  approved.fill(Qt::white);
  QImage written = approved;
  EXPECT_EQ(firstDifference(approved, written, true), "");
  written.setPixel(200, 85, 0);
  EXPECT_EQ(firstDifference(approved, written, true),
            "first at pixel 200, 85, in shpJoueur: approved ffffff, written 0");
  approved = written;
  written.setPixel(100, 100, 0);
  EXPECT_EQ(firstDifference(approved, written, false),
            "first at pixel 100, 100, in shpNames(0): approved ffffff, written 0");
}

}  // namespace
}  // namespace orvane::test
