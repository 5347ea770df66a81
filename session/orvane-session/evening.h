#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QElapsedTimer>
#include <QProgressDialog>

#include "canvas/qt_pictures.h"
#include "paper/qt_paper.h"
#include "screen/qt_settings.h"
#include "screen/screen_dialogs.h"
#include "screen/windows.h"
#include "session/session.h"
#include "session/session_file.h"
#include "surface/disk_files.h"
#include "surface/system_clock.h"

namespace orvane {

// A session on the screen: what the file holds is played out of sight, then the windows show where it ended.
class Evening {
 public:
  // Messages come up on the dialogs. The script is what the file holds.
  Evening(SessionFile& file, Script past, ScreenDialogs& dialogs, bool pdf);

  // The start; in the turns of the event loop that follow, the past.
  void begin();
  // Tells of lines that the file did not take to the very end.
  void end();
  Windows& windows() { return windows_; }
  bool isOpen() { return session_.run().mainWindow() != nullptr; }

 private:
  void tellChangedData();
  void takeUp();
  void playPast();
  void tellRefused(const Act& act, const std::string& reason);
  void goOn();
  void renewFile();
  void write(const std::string& lines);

  SessionFile& file_;
  Script past_;
  ScreenDialogs& dialogs_;
  SystemClock clock_;
  QtSettings settings_;
  DiskFiles files_;
  QtPictures pictures_;
  QtPaper paper_;
  const bool pdf_;
  Session session_;
  Windows windows_;
  std::unique_ptr<QProgressDialog> progress_;
  // What the file is to hold once the past is over.
  std::string kept_;
  // What goes ahead of the first act of the present.
  std::string marks_;
  bool failureTold_ = false;
};

}  // namespace orvane
