#include "shell/main_procedure.h"

#include <memory>

#include "data/load_data.h"
#include "editor/pools.h"
#include "sheet/composition.h"
#include "sheet/recovery.h"
#include "shell/FrmReadMe.h"
#include "shell/frmMain.h"
#include "shell/frmSplash.h"

namespace orvane {
namespace {

constexpr double splashSeconds = 1.0;
constexpr double secondsOfDay = 24 * 60 * 60;

// The first loaded form of a class.
template <class F>
F* loadedForm(const Desktop& desktop) {
  for (const auto& form : desktop.Forms())
    if (auto* found = dynamic_cast<F*>(form.get())) return found;
  return nullptr;
}

}  // namespace

Run::Run(const World& world) : globals_(desktop_, data_), desktop_(world) {
  globals_.showReadMe = [this] { showReadMe(); };
  globals_.composeSheet = [this](frmPersonnage& window) { composeSheet(globals_, window); };
}

void Run::Main() {
  globals_.iContactCost = contactPrices;
  const auto splash = std::make_shared<frmSplash>(desktop_);
  splash->Load();
  const float start = desktop_.world().clock.Timer();
  splash->cmdClose.setVisible(false);
  splash->Show();
  splash->Refresh();
  prcLoadData(data_, desktop_.world().files, desktop_.world().dialogs);
  const auto main = std::make_shared<frmMain>(globals_);
  main->Load();
  waitUntilSecondsAfter(start, splashSeconds);
  splash->Unload();
  main->Show();
  recoverSavesAtStart(desktop_.world().files, desktop_.world().dialogs);
}

void Run::waitUntilSecondsAfter(float start, double seconds) {
  Clock& clock = desktop_.world().clock;
  for (;;) {
    double passed = static_cast<double>(clock.Timer()) - static_cast<double>(start);
    if (passed < 0) passed += secondsOfDay;  // midnight came in between
    if (passed >= seconds) return;
    clock.sleep(static_cast<float>(seconds - passed));
  }
}

frmMain* Run::mainWindow() const { return loadedForm<frmMain>(desktop_); }

void Run::showReadMe() {
  if (auto* open = loadedForm<FrmReadMe>(desktop_))
    open->Show();
  else
    std::make_shared<FrmReadMe>(desktop_)->Show();
}

}  // namespace orvane
