#include "player/player_dialogs.h"

#include <algorithm>

#include "player/buttons.h"
#include "surface/property.h"

namespace orvane {

void PlayerDialogs::layDown(const std::vector<Answer>& answers) {
  answers_.insert(answers_.end(), answers.begin(), answers.end());
}

Answer PlayerDialogs::MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) {
  const Answer answer = nextAnswer(style, title);
  transcript_.line("box " + std::to_string(static_cast<int>(style)) + " " + quoted(title) + " " + quoted(prompt) + " " +
                   std::string(buttonName(answer)));
  return answer;
}

Answer PlayerDialogs::nextAnswer(BoxStyle style, const std::string& title) {
  const auto buttons = buttonsOf(style);
  if (answers_.empty()) return buttons.front();
  const Answer answer = answers_.front();
  answers_.pop_front();
  if (std::find(buttons.begin(), buttons.end(), answer) != buttons.end()) return answer;
  transcript_.refused("La boîte « " + title + " » n'a pas de bouton " + std::string(buttonName(answer)) + ".");
  return buttons.front();
}

}  // namespace orvane
