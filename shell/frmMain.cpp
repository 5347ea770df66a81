#include "shell/frmMain.h"

#include <algorithm>
#include <array>
#include <memory>

#include "data/reference_data.h"
#include "editor/frmPersonnage.h"
#include "shell/frmSplash.h"
#include "shell/placement_text.h"
#include "surface/desktop.h"

namespace orvane {
namespace {

constexpr int minimized = 1;

const std::string section = "Settings";

struct PlacementKey {
  const char* key;
  float frmMain::Placement::*value;
};

// In the order in which they are read and saved.
constexpr std::array<PlacementKey, 4> placementKeys = {{{"MainLeft", &frmMain::Placement::Left},
                                                        {"MainTop", &frmMain::Placement::Top},
                                                        {"MainWidth", &frmMain::Placement::Width},
                                                        {"MainHeight", &frmMain::Placement::Height}}};

bool hasUsableProfile(const ReferenceData& data) {
  return std::any_of(data.colProfil.begin(), data.colProfil.end(),
                     [](const auto& profile) { return profile->canBeChosen(); });
}

}  // namespace

frmMain::frmMain(Globals& globals)
    : Form(globals.desktop, {.name = "frmMain", .role = Role::Frame, .caption = "Orvane"}), globals_(globals) {
  on(mnuFileNewPJ.Click, &frmMain::mnuFileNewPJ_Click);
  on(mnuFileExit.Click, &frmMain::mnuFileExit_Click);
  on(mnuWindowCascade.Click, &frmMain::mnuWindowCascade_Click);
  on(mnuWindowTileHorizontal.Click, &frmMain::mnuWindowTileHorizontal_Click);
  on(mnuWindowTileVertical.Click, &frmMain::mnuWindowTileVertical_Click);
  on(mnuWindowArrangeIcons.Click, &frmMain::mnuWindowArrangeIcons_Click);
  on(mnuHelpContents.Click, &frmMain::mnuHelpContents_Click);
  on(mnuHelpAbout.Click, &frmMain::mnuHelpAbout_Click);
}

void frmMain::Form_Load() {
  Settings& settings = desktop().world().settings;
  for (const auto& [key, value] : placementKeys) {
    const float usual = placement_.*value;
    const std::string text = settings.GetSetting(App::Title, section, key, placementText(usual));
    placement_.*value = placementValue(text).value_or(usual);
  }
}

void frmMain::Form_Unload() {
  if (windowState_ == minimized) return;
  Settings& settings = desktop().world().settings;
  for (const auto& [key, value] : placementKeys)
    settings.SaveSetting(App::Title, section, key, placementText(placement_.*value));
}

void frmMain::mnuFileNewPJ_Click() {
  // A window without profiles or ethnic groups could not fill its lists.
  if (!hasUsableProfile(globals_.data)) {
    desktop().MsgBox("Pas de nouveau personnage possible : aucun profil utilisable n'a été lu dans profil.txt.",
                     BoxStyle::Critical);
    return;
  }
  if (globals_.data.colEthnie.Count() == 0) {
    desktop().MsgBox("Pas de nouveau personnage possible : aucune ethnie n'a été lue dans ethnie.txt.",
                     BoxStyle::Critical);
    return;
  }
  const auto window = std::make_shared<frmPersonnage>(globals_);
  // First: loading the window reaches some of its controls through it.
  globals_.frmCurrentPerso = window.get();
  window->Show();
}

void frmMain::mnuFileExit_Click() { Unload(); }

void frmMain::mnuWindowCascade_Click() { desktop().Arrange(Arrangement::Cascade); }
void frmMain::mnuWindowTileHorizontal_Click() { desktop().Arrange(Arrangement::TileHorizontally); }
void frmMain::mnuWindowTileVertical_Click() { desktop().Arrange(Arrangement::TileVertically); }
void frmMain::mnuWindowArrangeIcons_Click() { desktop().Arrange(Arrangement::Icons); }

void frmMain::mnuHelpContents_Click() {
  if (globals_.showReadMe) globals_.showReadMe();
}

void frmMain::mnuHelpAbout_Click() { std::make_shared<frmSplash>(desktop())->ShowModal(); }

}  // namespace orvane
