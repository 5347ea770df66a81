#include "shell/frmMain.h"

#include <algorithm>
#include <array>
#include <memory>

#include "data/reference_data.h"
#include "editor/frmPersonnage.h"
#include "shell/frmSplash.h"
#include "shell/placement_text.h"
#include "surface/desktop.h"
#include "surface/world.h"

namespace orvane {
namespace {

constexpr int minimized = 1;

const std::string section = "Settings";

// As far as any desktop reaches, and the least that still shows a window, in twips.
constexpr float farthest = 32767 * twipsPerPixel;
constexpr float narrowest = 200 * twipsPerPixel;
constexpr float lowest = 100 * twipsPerPixel;

struct PlacementKey {
  const char* key;
  float frmMain::Placement::*value;
  float least;
  bool allows(float twips) const { return twips >= least && twips <= farthest; }
};

// In the order in which they are read and saved.
constexpr std::array<PlacementKey, 4> placementKeys = {{{"MainLeft", &frmMain::Placement::Left, -farthest},
                                                        {"MainTop", &frmMain::Placement::Top, -farthest},
                                                        {"MainWidth", &frmMain::Placement::Width, narrowest},
                                                        {"MainHeight", &frmMain::Placement::Height, lowest}}};

bool hasUsableProfile(const ReferenceData& data) {
  return std::any_of(data.colProfil.begin(), data.colProfil.end(),
                     [](const auto& profile) { return profile.canBeChosen(); });
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
  for (const auto& place : placementKeys) {
    float& value = placement_.*place.value;
    const auto stored = placementValue(settings.GetSetting(App::Title, section, place.key, placementText(value)));
    if (stored && place.allows(*stored)) value = *stored;
  }
}

void frmMain::Form_Unload() {
  if (windowState_ == minimized) return;
  Settings& settings = desktop().world().settings;
  for (const auto& place : placementKeys)
    if (const float value = placement_.*place.value; place.allows(value))
      settings.SaveSetting(App::Title, section, place.key, placementText(value));
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
