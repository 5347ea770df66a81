#include "screen/screenshots/tour.h"

#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include "canvas/qt_pictures.h"
#include "editor/frmContact.h"
#include "player/act_kinds.h"
#include "player/player_world.h"
#include "player/script_parser.h"
#include "player/stage.h"
#include "screen/screen_dialogs.h"
#include "screen/windows.h"
#include "shell/frmSplash.h"
#include "shell/main_procedure.h"
#include "surface/disk_files.h"
#include "surface/system_clock.h"

namespace orvane {
namespace {

const char* const tabPictures[] = {"civil", "caracteristiques", "contacts", "competences", "arts", "mutation"};

class Tour {
 public:
  explicit Tour(const Album& album) : album_(album) {
    dialogs_.playModal = [this](Form& form) { playModal(form); };
    run_.Main();
  }
  ~Tour() {
    if (auto* frame = run_.mainWindow()) stage_.user.close(*frame);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void play(const std::string& file) {
    script_ = parseScript(file, files_.read(file));
    while (playNext()) {
    }
  }
  void takeAll() {
    takeTabs();
    takeSheet();
    takeMarks();
    takeDialogs();
    takeBox();
    takeHelp();
  }

 private:
  MainWindow& main() { return *windows_.mainWindow(); }
  void act(const std::string& line) {
    const Script script = parseScript("tour", line);
    for (const auto& one : script.acts) one.kind->play(stage_, one);
  }

  // Up to the sheet.
  bool playNext() {
    if (next_ == script_.acts.size()) return false;
    const Act& act = script_.acts[next_];
    if (act.kind->name == "click" && act.target.name == "cmdPrintPreview") return false;
    ++next_;
    act.kind->play(stage_, act);
    return true;
  }
  void playModal(Form& form) {
    while (form.isLoaded() && playNext()) {
    }
    if (form.isLoaded()) stage_.user.close(form);
  }

  // As large as the window inside it, wherever that stands, and no larger than needed.
  void fitMain() {
    const auto* child = windows_.childOf(*run_.desktop().activeChild());
    const QSize around = main().size() - main().area().viewport()->size();
    main().resize(around + QSize(child->geometry().right() + 1, child->geometry().bottom() + 1));
  }
  void takeTabs() {
    fitMain();
    for (int tab = 0; tab < 6; ++tab) {
      act("pick SSTabPerso " + std::to_string(tab));
      if (tab == 2) act("pick lstContact 0\nclick optContact(0)");
      if (tab == 4) act("row lvwMartialArt 1");
      album_.take(main(), tabPictures[tab]);
    }
  }
  void takeSheet() {
    main().resize(1000, 1160);
    act("answer OK\nclick cmdPrintPreview");
    album_.take(main(), "feuille-recto");
    act("click optFeuille(1)");
    album_.take(main(), "feuille-verso");
    act("close");
  }
  void takeMarks() {
    act("click mnuFileNewPJ\ntype txtTaille \"grand\"\nclick cmdPrintPreview");
    fitMain();
    album_.take(main(), "contraintes");
    act("close");
  }
  void takeDialogs() {
    const auto contact = std::make_shared<frmContact>(run_.globals());
    contact->txtContactName.setText("Mado");
    contact->txtContactDescro.setText("Tient le café d'en face ; entend tout.");
    takeDialog(contact, "contact");
    takeDialog(std::make_shared<frmSplash>(run_.desktop()), "a-propos");
  }
  void takeDialog(const std::shared_ptr<Form>& form, const QString& picture) {
    form->Show();
    if (auto* dialog = windows_.dialogOf(*form)) album_.take(*dialog, picture);
    form->Unload();
  }
  // A message box blocks until it is answered.
  void takeBox() {
    ScreenDialogs boxes;
    boxes.setWindows(windows_);
    QTimer::singleShot(0, &main(), [this] {
      auto* box = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
      album_.take(*box, "question");
      box->reject();
    });
    boxes.MsgBox(
        "Après la sauvegarde, vous ne pourrez plus modifier le personnage.\r\n"
        "Etes-vous certain de vouloir continuer ?",
        BoxStyle::OkCancel, "Sauvegarde de Anne Ravel");
  }
  void takeHelp() {
    act("click mnuHelpContents");
    album_.take(main(), "aide");
  }

  const Album& album_;
  std::ostringstream transcriptText_;
  Transcript transcript_{transcriptText_};
  PlayerDialogs dialogs_{transcript_, std::cerr};
  SystemClock timeOfDay_;
  PlayerClock clock_{timeOfDay_};
  NoSettings settings_;
  DiskFiles files_;
  QtPictures pictures_;
  Run run_{{dialogs_, clock_, settings_, files_, pictures_}};
  User user_{run_.desktop()};
  Windows windows_{run_.desktop(), user_};
  Stage stage_{run_.desktop(), user_, transcript_, dialogs_, clock_};
  Script script_;
  std::size_t next_ = 0;
};

}  // namespace

void takeTour(const std::string& script, const Album& album) {
  try {
    Tour tour(album);
    tour.play(script);
    tour.takeAll();
  } catch (const Refusal& refusal) {
    throw std::runtime_error(refusal.reason);
  } catch (const ScriptError& error) {
    throw std::runtime_error(error.message);
  }
}

}  // namespace orvane
