#include "endurance/rounds.h"

#include <sstream>

#include <QApplication>
#include <QTimer>

#include "endurance/random_faults.h"
#include "endurance/stamped_pictures.h"
#include "player/play_scripts.h"
#include "screen/windows.h"
#include "shell/main_procedure.h"
#include "tests/random/invariants.h"
#include "tests/random/random_user.h"
#include "tests/support/fakes.h"

namespace orvane::soak {
namespace {

constexpr int actsOfARound = 300;
constexpr int actsAmongMany = 20;
constexpr int manyWindows = 100;

void turn() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::size_t count(std::string_view text, std::string_view part) {
  std::size_t found = 0;
  for (auto at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) ++found;
  return found;
}

// Boxes are answered at random; modal windows stand on the screen while the random user fills them in.
class SoakDialogs : public Dialogs {
 public:
  test::RandomUser* user = nullptr;
  Windows* windows = nullptr;
  std::string failures;
  int saves = 0;

  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string&) override {
    saves += prompt.find("sauvé(e) dans ./Perso/") != std::string::npos;
    return user ? user->answer(style) : Answer::OK;
  }
  void runModal(Form& form) override {
    QTimer::singleShot(0, [this, &form] { user->actModal(form); });
    windows->runModal(form);
  }
  void failure(const std::string& description) override { failures += description + "\n"; }
  void notice(const std::string&) override {}
};

class RandomRound {
 public:
  RandomRound(std::mt19937& random, Tally& tally) : random_(random), tally_(tally), files_(random) {
    dialogs_.windows = &windows_;
    run_.Main();
    dialogs_.user = &user_;
    files_.failOnce(static_cast<int>(20 + random_() % 200), random_() % 4 == 0);
  }

  void play() {
    const bool many = tally_.windows == 0 || random_() % 6 == 0;
    if (many) openManyWindows();
    for (int i = 0; i < (many ? actsAmongMany : actsOfARound); ++i) {
      clock_.now += 0.25F;
      user_.act(*run_.mainWindow());
      check();
      ++tally_.acts;
    }
    hand_.close(*run_.mainWindow());
    turn();
    require(run_.desktop().Forms().empty(), "all windows close");
    tally_.faults += files_.met();
    tally_.saves += dialogs_.saves;
  }

 private:
  void openManyWindows() {
    auto& frame = *run_.mainWindow();
    for (int i = 0; i < manyWindows; ++i) hand_.click(frame.mnuFileNewPJ);
    for (auto* arrange : {&frame.mnuWindowCascade, &frame.mnuWindowTileHorizontal, &frame.mnuWindowTileVertical})
      hand_.click(*arrange);
    check();
    tally_.windows += manyWindows;
  }

  void check() {
    turn();
    require(dialogs_.failures.empty(), user_.lastAct() + ": " + dialogs_.failures);
    for (const auto& form : run_.desktop().Forms())
      if (const auto* perso = dynamic_cast<const frmPersonnage*>(form.get())) {
        const std::string broken = test::brokenInvariant(*perso, run_.data());
        require(broken.empty(), user_.lastAct() + ": " + broken);
      }
  }

  std::mt19937& random_;
  Tally& tally_;
  SoakDialogs dialogs_;
  test::FakeClock clock_;
  test::MemorySettings settings_;
  RandomFaults files_;
  StampedPictures pictures_;
  Run run_{{dialogs_, clock_, settings_, files_, pictures_}};
  User hand_{run_.desktop()};
  Windows windows_{run_.desktop(), hand_};
  test::RandomUser user_{hand_, run_.desktop(), static_cast<unsigned>(random_())};
};

}  // namespace

void playRandomActs(std::mt19937& random, Tally& tally) { RandomRound(random, tally).play(); }

void playScriptsOf(const std::filesystem::path& folder, std::mt19937& random, Tally& tally) {
  std::vector<std::string> arguments{"--keep-going"};
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    if (entry.path().extension() == ".script") arguments.push_back(entry.path());
  std::shuffle(arguments.begin() + 1, arguments.end(), random);
  RandomFaults files(random);
  files.failOnce(static_cast<int>(10 + random() % 100), false);
  StampedPictures pictures;
  test::FakeClock midday;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream errors;
  playScripts(arguments, in, out, errors, {files, pictures, midday});
  tally.acts += static_cast<int>(count(out.str(), "\n"));
  tally.saves += static_cast<int>(count(out.str(), "sauvé(e) dans"));
  tally.faults += files.met();
}

}  // namespace orvane::soak
