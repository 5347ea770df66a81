#include "session/orvane-session/evening.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTimer>

#include "canvas/qt_text.h"
#include "session/data_marks.h"
#include "session/past_text.h"
#include "shell/frmMain.h"
#include "surface/app.h"
#include "surface/system_reason.h"
#include "surface/text.h"

namespace orvane {
namespace {

// The session is not gone on with: the user wants to leave, or its file cannot be renewed. Through handlers that catch
// what they take for a failure.
struct Leaving {
  int status;
};

std::string headOfSession(Files& files) {
  return "# Session d'Orvane " + App::version() +
         " : ce que fait le joueur, un acte par ligne. orvane-session la continue, orvane-batch la rejoue.\n" +
         dataMarks(files);
}

std::string joined(const std::vector<std::string>& names) {
  QStringList list;
  for (const auto& name : names) list << toQt(name);
  return fromQt(list.join(", "));
}

std::string lineOf(const std::string& text, int number) {
  std::string_view rest = text;
  for (int line = 1; line < number; ++line) cutLine(rest);
  return std::string(cutLine(rest));
}

}  // namespace

Evening::Evening(SessionFile& file, Script past, ScreenDialogs& dialogs, bool pdf)
    : file_(file),
      past_(std::move(past)),
      dialogs_(dialogs),
      pdf_(pdf),
      session_({dialogs, clock_, settings_, files_, pictures_}, [this](const std::string& lines) { write(lines); }),
      windows_(session_.run().desktop(), session_.user()),
      kept_(file.text()) {
  dialogs_.setWindows(windows_);
  session_.refused = [this](const Act& act, const std::string& reason) { tellRefused(act, reason); };
  session_.arrived = [this] { goOn(); };
}

void Evening::begin() {
  if (file_.text().empty()) file_.append(kept_ = headOfSession(files_));
  tellChangedData();
  session_.run().desktop().perform([this] { session_.run().Main(); });
  if (!isOpen()) return;
  windows_.lookAway();
  // How large it shows the frame, the desktop says later.
  constexpr int untilPlaced = 150;  // milliseconds
  QTimer::singleShot(untilPlaced, windows_.mainWindow(), [this] { takeUp(); });
}

void Evening::takeUp() {
  try {
    playPast();
  } catch (const Leaving& leaving) {
    QCoreApplication::exit(leaving.status);
  }
}

void Evening::tellChangedData() {
  const auto changed = changedData(file_.text(), files_);
  if (changed.empty()) return;
  kept_ = withDataMarks(kept_, files_);
  dialogs_.notice("Des données ont changé depuis le début de cette session : " + joined(changed) +
                  ".\r\nElle est reprise avec les nouvelles, et le fichier d'avant est gardé à côté.");
}

void Evening::playPast() {
  constexpr int shownAfter = 1000;  // milliseconds
  constexpr std::size_t between = 64;
  progress_ = std::make_unique<QProgressDialog>("La session reprend…", QString(), 0,
                                                static_cast<int>(past_.acts.size()), windows_.mainWindow());
  progress_->setWindowModality(Qt::WindowModal);
  progress_->setMinimumDuration(shownAfter);
  session_.progress = [this](std::size_t played) {
    if (progress_ && played % between == 0) progress_->setValue(static_cast<int>(played));
  };
  session_.playPast(past_);
}

void Evening::tellRefused(const Act& act, const std::string& reason) {
  progress_.reset();
  const Answer answer = dialogs_.MsgBox("La session s'arrête à la ligne " + std::to_string(act.line) + " : " +
                                            shortened(lineOf(file_.text(), act.line)) + "\r\n" + shortened(reason) +
                                            "\r\n\r\nContinuer à partir d'ici ? La suite de ces actes sera abandonnée, "
                                            "et le fichier d'avant gardé à côté.",
                                        BoxStyle::YesNo, App::Title);
  if (answer != Answer::Yes) throw Leaving{0};
  kept_ = textBefore(kept_, past_, act);
}

void Evening::goOn() {
  progress_.reset();
  renewFile();
  if (!hasDataMarks(kept_)) marks_ = dataMarks(files_);
  if (pdf_) session_.run().globals().paperOf = [this](const PrintedSheet& sheet) { return paper_.sheet(sheet); };
  windows_.catchUp();
}

void Evening::renewFile() {
  if (kept_ == file_.text() || file_.text().empty()) return;
  constexpr int notWritten = 2;
  try {
    file_.restart(kept_);
  } catch (const std::exception& error) {
    dialogs_.failure("La session reste telle qu'elle était, et ne peut pas être reprise.\r\n" + sentenceOn(error));
    throw Leaving{notWritten};
  }
}

void Evening::end() {
  try {
    file_.append({});
  } catch (const std::exception& error) {
    dialogs_.failure(sentenceOn(error) + "\r\nCe que vous avez fait depuis qu'elle ne s'écrit plus n'y est pas.");
  }
}

void Evening::write(const std::string& lines) {
  try {
    file_.append(std::exchange(marks_, {}) + lines);
    failureTold_ = false;
  } catch (const std::exception& error) {
    if (std::exchange(failureTold_, true)) return;
    dialogs_.failure(sentenceOn(error) +
                     "\r\nCe que vous faites d'ici là s'y ajoutera dès que ce sera de nouveau possible.");
  }
}

}  // namespace orvane
