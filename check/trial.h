#pragma once

#include <functional>
#include <memory>

#include "check/nobody.h"
#include "data/reference_data.h"
#include "editor/frmPersonnage.h"
#include "surface/desktop.h"
#include "surface/disk_files.h"
#include "surface/system_clock.h"

namespace orvane {

// A run of the rules on reference data of its own: a character window on a desktop that no one sees.
class Trial : private Nobody {
 public:
  // A message box, and how many rows the list of skills had when it came.
  struct Box {
    BoxStyle style;
    std::int32_t skillRows;
  };

  // Opens the window, which applies the first profile to it.
  Trial(ReferenceData data, Pictures& pictures);

  // Applies the first profile of other data. Of these the window reads anew the profiles and skills alone.
  void apply(ReferenceData data);
  // Runs an act of a user, or of the rules. Fails where the rules do: what they cannot work with is to be kept from
  // them.
  void act(const std::function<void()>& act);
  // What the rules told since the last call.
  std::vector<Box> boxes() { return std::exchange(boxes_, {}); }

  // False once the window has closed itself.
  bool isOpen() const { return window_->isLoaded(); }
  frmPersonnage& window() { return *window_; }
  Globals& globals() { return globals_; }

 private:
  void open();
  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) override;
  void failure(const std::string& description) override { failure_ = description; }

  SystemClock clock_;
  NoSettings settings_;
  DiskFiles files_;
  std::vector<Box> boxes_;
  std::string failure_;
  ReferenceData data_;
  std::shared_ptr<frmPersonnage> window_;
  Desktop desktop_;
  Globals globals_{desktop_, data_};
};

// The least that a window opens with: an ethnic group, a profile with the martial arts, and their skill.
ReferenceData leastData();

}  // namespace orvane
