#include "player/player_world.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "surface/property.h"

namespace orvane {
namespace {

constexpr double secondsOfDay = 24 * 60 * 60;

constexpr std::array<std::pair<Answer, const char*>, 4> names = {
    {{Answer::OK, "OK"}, {Answer::Cancel, "Cancel"}, {Answer::Yes, "Yes"}, {Answer::No, "No"}}};

}  // namespace

const char* buttonName(Answer button) {
  for (const auto& [known, name] : names)
    if (known == button) return name;
  return "";
}

std::optional<Answer> buttonNamed(std::string_view name) {
  for (const auto& [button, known] : names)
    if (known == name) return button;
  return std::nullopt;
}

std::vector<Answer> buttonsOf(BoxStyle style) {
  if (style == BoxStyle::OkCancel) return {Answer::OK, Answer::Cancel};
  if (style == BoxStyle::YesNo) return {Answer::Yes, Answer::No};
  return {Answer::OK};
}

void PlayerDialogs::layDown(const std::vector<Answer>& answers) {
  answers_.insert(answers_.end(), answers.begin(), answers.end());
}

Answer PlayerDialogs::MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) {
  const Answer answer = nextAnswer(style, title);
  transcript_.line("box " + std::to_string(static_cast<int>(style)) + " " + quoted(title) + " " + quoted(prompt) + " " +
                   buttonName(answer));
  return answer;
}

Answer PlayerDialogs::nextAnswer(BoxStyle style, const std::string& title) {
  const auto buttons = buttonsOf(style);
  if (answers_.empty()) return buttons.front();
  const Answer answer = answers_.front();
  answers_.pop_front();
  if (std::find(buttons.begin(), buttons.end(), answer) != buttons.end()) return answer;
  transcript_.refused("La boîte « " + title + " » n'a pas de bouton " + buttonName(answer) + ".");
  return buttons.front();
}

float PlayerClock::Timer() {
  if (set_) return static_cast<float>(*set_);
  return static_cast<float>(std::fmod(static_cast<double>(timeOfDay_.Timer()) + slept_, secondsOfDay));
}

void PlayerClock::sleep(float seconds) { (set_ ? *set_ : slept_) += static_cast<double>(seconds); }

}  // namespace orvane
