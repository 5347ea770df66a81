#include "player/script_player.h"

#include "player/act_kinds.h"
#include "shell/frmMain.h"

namespace orvane {

ScriptPlayer::ScriptPlayer(std::ostream& out, std::ostream& err, PlayerParts parts, bool keepGoing)
    : transcript_(out),
      dialogs_(transcript_, err),
      clock_(parts.timeOfDay),
      run_({parts.door ? parts.door->dialogs(dialogs_) : dialogs_, parts.door ? parts.door->clock(clock_) : clock_,
            settings_, parts.files, parts.pictures}),
      user_(parts.door ? parts.door->user(run_) : std::make_unique<User>(run_.desktop())),
      stage_{run_.desktop(), *user_, transcript_, dialogs_, clock_},
      keepGoing_(keepGoing) {
  dialogs_.playModal = [this](Form& form) { playModal(form); };
  run_.globals().sheetNotSaved = [this] { unsavedSheets_ = true; };
  if (auto* paper = parts.paper)
    run_.globals().paperOf = [paper](const PrintedSheet& sheet) { return paper->sheet(sheet); };
  if (auto* sheets = parts.savedSheets)
    run_.globals().sheetSaved = [sheets](const PrintedSheet& sheet) { sheets->push_back(sheet); };
}

bool ScriptPlayer::play(const std::vector<Script>& scripts) {
  if (!scripts.empty()) transcript_.moveTo(scripts.front().file, 0);
  run_.Main();
  for (const auto& script : scripts) playScript(script);
  if (frmMain* window = run_.mainWindow()) stage_.user.close(*window);
  return !transcript_.hasFaults();
}

void ScriptPlayer::playScript(const Script& script) {
  script_ = &script;
  next_ = 0;
  while (playNext()) {
  }
  dialogs_.dropAnswers();
}

bool ScriptPlayer::playNext() {
  if (stopped() || next_ == script_->acts.size()) return false;
  playAct(script_->acts[next_++]);
  return true;
}

void ScriptPlayer::playAct(const Act& act) {
  transcript_.moveTo(script_->file, act.line);
  try {
    act.kind->play(stage_, act);
  } catch (const Refusal& refusal) {
    transcript_.refused(refusal.reason);
  }
}

void ScriptPlayer::playModal(Form& form) {
  while (form.isLoaded() && playNext()) {
  }
  if (form.isLoaded()) stage_.user.close(form);
}

}  // namespace orvane
