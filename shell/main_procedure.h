#pragma once

#include "data/reference_data.h"
#include "editor/globals.h"
#include "surface/desktop.h"

namespace orvane {

class frmMain;

// One run of the system, from its start until its last window is gone. Runs share nothing.
class Run {
 public:
  explicit Run(const World& world);
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

  // The start: splash, reference data, main window, and what a program that died has left of a save. Ends with the main
  // window shown, no sooner than one second after the splash came up; all else happens in event handlers.
  void Main();

  Desktop& desktop() { return desktop_; }
  Globals& globals() { return globals_; }
  const ReferenceData& data() const { return data_; }
  // Null before Main and once the window was closed.
  frmMain* mainWindow() const;

 private:
  // Brings up the one help window.
  void showReadMe();
  void waitUntilSecondsAfter(float start, double seconds);

  ReferenceData data_;
  // Before the desktop, whose forms use them to the end.
  Globals globals_;
  Desktop desktop_;
};

}  // namespace orvane
