#include "session/session.h"

#include <utility>

#include "player/act_kinds.h"

namespace orvane {

Answer Session::BothDialogs::MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) {
  return current().MsgBox(prompt, style, title);
}

void Session::BothDialogs::runModal(Form& form) {
  if (isPast_) past_.runModal(form);
  if (form.isLoaded()) present_.runModal(form);
}

Session::Session(const World& present, Journal::Sink sink)
    : pastClock_(present.clock),
      journal_([this, sink = std::move(sink)](const std::string& lines) {
        if (!isPast_) sink(lines);
      }),
      bothDialogs_(pastDialogs_, present.dialogs, isPast_),
      bothClocks_(pastClock_, present.clock, isPast_),
      files_(present.files, isPast_),
      run_({dialogs_, clock_, present.settings, files_, present.pictures}) {
  pastDialogs_.playModal = [this](Form& form) {
    while (form.isLoaded() && playNext()) {
    }
    if (form.isLoaded()) arrive();
  };
  // Where the pair is saved and its PDF is not, one is told of both.
  run_.globals().sheetNotSaved = [this] { journal_.setFailed(true); };
  run_.globals().sheetSaved = [this](const PrintedSheet&) { journal_.setFailed(false); };
}

void Session::playPast(const Script& past) {
  script_ = &past;
  next_ = 0;
  isPast_ = true;
  while (playNext()) {
  }
  arrive();
}

bool Session::playNext() {
  if (!isPast_ || next_ == script_->acts.size()) return false;
  playAct(script_->acts[next_++]);
  progress(next_);
  return true;
}

void Session::playAct(const Act& act) {
  try {
    act.kind->play(stage_, act);
  } catch (const Refusal& refusal) {
    next_ = script_->acts.size();
    refused(act, refusal.reason);
  }
}

void Session::arrive() {
  if (std::exchange(isPast_, false)) arrived();
}

}  // namespace orvane
