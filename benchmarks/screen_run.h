#pragma once

#include <memory>
#include <vector>

#include <QMainWindow>
#include <QMdiArea>

#include "benchmarks/folders.h"
#include "canvas/qt_pictures.h"
#include "editor/frmPersonnage.h"
#include "screen/windows.h"
#include "shell/main_procedure.h"
#include "surface/disk_files.h"

namespace orvane::bench {

// Answers every box with its first button, or Yes.
class QuietDialogs final : public Dialogs {
 public:
  Answer MsgBox(const std::string&, BoxStyle style, const std::string&) override;
  void runModal(Form& form) override { form.Unload(); }
  void failure(const std::string& description) override;
  void notice(const std::string&) override {}
};

// Waits for nothing.
class HastyClock final : public Clock {
 public:
  float Timer() override { return now_; }
  void sleep(float seconds) override { now_ += seconds; }

 private:
  float now_ = 0;
};

// The program on the screen, started in a folder, with its main window shown.
class ScreenRun {
 public:
  explicit ScreenRun(const Path& folder);

  // What a user does, until the screen shows it.
  void act(const Deed& deed);
  frmPersonnage& openCharacter();
  void close(Form& form);
  QWidget& windowOf(const Form& form) const { return *windows_.childOf(form); }

 private:
  QuietDialogs dialogs_;
  HastyClock clock_;
  NoSettings settings_;
  DiskFiles files_;
  QtPictures pictures_;
  Run run_;
  User user_;
  Windows windows_;
};

// Lets the screen catch up.
void showAll();

// A window like the one that is given in the work area of another main window: as many widgets of the same classes at
// the same places, with nothing in them.
class BareWindow {
 public:
  explicit BareWindow(const QWidget& model);

  void open();
  void close();

 private:
  struct Piece {
    const char* kind;
    bool editable;  // a combo box with a line edit in it
    int parent;     // position of the piece that holds it, -1 for none
    QRect place;
    bool visible;
  };
  void note(const QWidget& widget, int parent);

  std::vector<Piece> pieces_;
  QRect place_;
  QMainWindow frame_;
  QMdiArea* area_;
  QMdiSubWindow* window_ = nullptr;
};

}  // namespace orvane::bench
