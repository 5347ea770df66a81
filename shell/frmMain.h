#pragma once

#include "editor/globals.h"
#include "surface/form.h"
#include "surface/menu_item.h"

namespace orvane {

// The frame that holds all child windows, with the menu.
class frmMain : public Form {
 public:
  // In twips, as the settings store them. What no desktop has room for, or shows no window, is neither taken from them
  // nor stored.
  struct Placement {
    float Left = 1000;
    float Top = 1000;
    float Width = 6500;
    float Height = 6500;
  };

  explicit frmMain(Globals& globals);

  MenuItem mnuFile{*this, "mnuFile", {1, "Action"}};
  MenuItem mnuFileNewPJ{*this, "mnuFileNewPJ", {2, "New PJ", "Ctrl+P"}};
  MenuItem mnuFileBar3{*this, "mnuFileBar3", {2, "-"}};
  MenuItem mnuFileExit{*this, "mnuFileExit", {2, "Exit"}};
  MenuItem mnuWindow{*this, "mnuWindow", {1, "Window"}};
  MenuItem mnuWindowCascade{*this, "mnuWindowCascade", {2, "Cascade"}};
  MenuItem mnuWindowTileHorizontal{*this, "mnuWindowTileHorizontal", {2, "Tile Horizontal"}};
  MenuItem mnuWindowTileVertical{*this, "mnuWindowTileVertical", {2, "Tile Vertical"}};
  MenuItem mnuWindowArrangeIcons{*this, "mnuWindowArrangeIcons", {2, "Arrange Icons"}};
  MenuItem mnuHelp{*this, "mnuHelp", {1, "Help"}};
  MenuItem mnuHelpContents{*this, "mnuHelpContents", {2, "Contents"}};
  MenuItem mnuHelpBar0{*this, "mnuHelpBar0", {2, "-"}};
  MenuItem mnuHelpAbout{*this, "mnuHelpAbout", {2, "About"}};

  // What the settings hold, and what the screen reports of the window since then.
  const Placement& placement() const { return placement_; }
  void moved(const Placement& placement) { placement_ = placement; }
  // 0 normal, 1 minimised, 2 maximised; reported by the screen.
  int WindowState() const { return windowState_; }
  void setWindowState(int state) { windowState_ = state; }

 protected:
  // MDIForm_Load and MDIForm_Unload of the frame.
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void mnuFileNewPJ_Click();
  void mnuFileExit_Click();
  void mnuWindowCascade_Click();
  void mnuWindowTileHorizontal_Click();
  void mnuWindowTileVertical_Click();
  void mnuWindowArrangeIcons_Click();
  void mnuHelpContents_Click();
  void mnuHelpAbout_Click();

  Globals& globals_;
  Placement placement_;
  int windowState_ = 0;
};

}  // namespace orvane
