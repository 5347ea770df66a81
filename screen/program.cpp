#include "screen/program.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include "canvas/qt_pictures.h"
#include "screen/end_requests.h"
#include "screen/qt_settings.h"
#include "screen/readable_style.h"
#include "screen/screen_dialogs.h"
#include "screen/windows.h"
#include "shell/main_procedure.h"
#include "surface/disk_files.h"
#include "surface/system_clock.h"

namespace orvane {

void dressUp() { QApplication::setStyle(new ReadableStyle); }

namespace {

// What Qt itself says: context and system menus. Where the system has no such translation they stay English.
void speakFrench() {
  auto* translation = new QTranslator(qApp);
  if (translation->load(QLocale(QLocale::French), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(translation);
}

}  // namespace

void prepareDesktop() {
  speakFrench();
  dressUp();
  QApplication::setQuitOnLastWindowClosed(false);
}

int runProgram() {
  prepareDesktop();
  ScreenDialogs dialogs;
  SystemClock clock;
  QtSettings settings;
  DiskFiles files;
  QtPictures pictures;
  Run run({dialogs, clock, settings, files, pictures});
  User user(run.desktop());
  Windows windows(run.desktop(), user);
  windows.closed = [] { QCoreApplication::quit(); };
  dialogs.setWindows(windows);
  const EndRequests endRequests(windows);
  run.desktop().perform([&run] { run.Main(); });
  return run.mainWindow() ? QApplication::exec() : 1;
}

}  // namespace orvane
