#pragma once

#include "surface/control.h"

namespace orvane {

// Tabs, of which one is selected. Controls on the other tabs keep their values and take writes like any other.
class TabControl : public Control {
 public:
  struct Design {
    std::vector<std::string> captions = {};
  };

  TabControl(Place place, std::string name, Design design);

  // 0-based. The write fails with a tab that is not there; code may select a disabled one.
  int Tab() const { return tab_; }
  void setTab(int tab);
  int Tabs() const { return static_cast<int>(tabs_.size()); }
  // All fail with a tab that is not there.
  const std::string& TabCaption(int tab) const { return tabs_[checked(tab)].caption; }
  bool TabEnabled(int tab) const { return tabs_[checked(tab)].enabled; }
  void setTabEnabled(int tab, bool enabled) { store(tabs_[checked(tab)].enabled, enabled); }
  bool TabVisible(int tab) const { return tabs_[checked(tab)].visible; }
  void setTabVisible(int tab, bool visible) { store(tabs_[checked(tab)].visible, visible); }
  void setTabsPerRow(int count) { store(tabsPerRow_, count); }

  // With the tab that was selected before.
  Event<std::int16_t> Click{*this};

  std::string_view kind() const override { return "onglets"; }
  PropertyList properties() const override;
  // Also TabEnabled(i) and TabVisible(i).
  std::optional<Value> property(std::string_view name) const override;
  Effect preparePick(const Entry& entry) override;

 private:
  struct Page {
    std::string caption;
    bool enabled = true;
    bool visible = true;
  };

  std::size_t checked(int tab) const { return offsetOf(tab, 0, Tabs(), "d'onglet", Name()); }
  bool canBePicked(const Page& page) const { return page.enabled && page.visible; }
  std::string pickableTabs() const;

  std::vector<Page> tabs_;
  int tab_ = 0;
  int tabsPerRow_ = 3;
};

}  // namespace orvane
