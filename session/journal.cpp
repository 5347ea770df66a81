#include "session/journal.h"

#include <array>
#include <charconv>
#include <utility>

#include "player/player_world.h"

namespace orvane {
namespace {

// As the player reads it back to the same value.
std::string decimals(float seconds) {
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), seconds, std::chars_format::fixed);
  return {text.data(), end.ptr};
}

// The window that a failed act came with was activated all the same.
std::string asFailed(std::string lines) {
  const auto last = lines.rfind('\n') + 1;  // npos is one less than 0
  return lines.insert(last, "# échoué : ");
}

}  // namespace

void Journal::begin(std::string act) {
  write();
  OpenAct begun;
  begun.lines = std::move(act);
  open_ = std::move(begun);
}

void Journal::setFailed(bool failed) {
  if (open_) open_->failed = failed;
}

void Journal::answered(BoxStyle style, Answer answer) {
  if (!open_) return;
  open_->answers.emplace_back(buttonName(answer));
  if (answer != buttonsOf(style).front()) open_->neededAnswers = open_->answers.size();
}

float Journal::timeOf(float now) {
  if (!open_) return now;
  if (!open_->time) open_->time = now;
  return *open_->time;
}

void Journal::write() {
  const auto done = std::exchange(open_, std::nullopt);
  if (!done) return;
  if (done->failed) return sink_(asFailed(done->lines) + "\n");
  std::string lines;
  if (done->time) lines += "clock " + decimals(*done->time) + "\n";
  if (done->neededAnswers > 0) lines += "answer";
  for (std::size_t i = 0; i < done->neededAnswers; ++i) lines += " " + done->answers[i];
  if (done->neededAnswers > 0) lines += "\n";
  sink_(lines + done->lines + "\n");
}

}  // namespace orvane
