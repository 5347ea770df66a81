#include <fstream>
#include <iterator>
#include <map>
#include <vector>

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include "canvas/qt_pictures.h"
#include "tests/canvas/gui.h"

namespace orvane::test {
namespace {

constexpr const char* goalVariable = "ORVANE_TEST_BITMAP";

// A sample in all sizes, written where the variable says. Run by the test below in programs of their own.
TEST(EveryScreen, DISABLED_WriteSample) {
  const auto sheet = QtPictures().open("recto");
  float y = 1215;
  for (const float points : {8.0F, 9.0F, 10.0F}) {
    sheet->setFont("Times New Roman", points);
    sheet->print("Éva d’Ormesson, WAVE (+3) : 1,5 kg « fi »", 1635 + sheet->TextWidth("Tonfa"), y);
    y += 100 + sheet->TextHeight("");
  }
  std::ofstream(qgetenv(goalVariable).toStdString(), std::ios::binary) << sheet->bitmap();
}

// Empty when the program failed.
std::string sample(const std::map<QString, QString>& settings) {
  const QTemporaryDir folder;
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert(goalVariable, folder.filePath("sample.bmp"));
  for (const auto& [name, value] : settings) environment.insert(name, value);
  QProcess program;
  program.setProcessEnvironment(environment);
  program.start(QCoreApplication::applicationFilePath(),
                {"--gtest_also_run_disabled_tests", "--gtest_filter=*DISABLED_WriteSample"});
  if (!program.waitForFinished() || program.exitCode() != 0) return {};
  std::ifstream bytes(folder.filePath("sample.bmp").toStdString(), std::ios::binary);
  return {std::istreambuf_iterator<char>(bytes), {}};
}

TEST(EveryScreen, GivesTheSameBitmap) {
  const std::string expected = sample({});
  ASSERT_GT(expected.size(), 2000000U);
  const std::vector<std::map<QString, QString>> screens{
      {{"QT_SCALE_FACTOR", "2"}},  {{"QT_SCALE_FACTOR", "1.25"}, {"QT_SCALE_FACTOR_ROUNDING_POLICY", "PassThrough"}},
      {{"QT_FONT_DPI", "144"}},    {{"QT_QPA_PLATFORM", "minimal:enable_fonts"}},
      {{"LC_ALL", "fr_FR.UTF-8"}}, {{"LC_ALL", "C"}, {"LANGUAGE", "ja"}},
  };
  for (const auto& screen : screens)
    EXPECT_TRUE(sample(screen) == expected)
        << screen.begin()->first.toStdString() << "=" << screen.begin()->second.toStdString();
}

}  // namespace
}  // namespace orvane::test
