#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "surface/text.h"
#include "surface/world.h"
#include "tests/support/memory_files.h"

namespace orvane::test {

using Log = std::vector<std::string>;

// Dialogs that write down what is told, one text each, as "STYLE|TITLE|PROMPT", "failure|DESCRIPTION"
// and "notice|TEXT".
class LoggedDialogs : public Dialogs {
 public:
  Log log;
  // The buttons to press, in order; OK when they have run out.
  std::deque<Answer> answers;
  // What the user does in a modal form.
  std::function<void(Form&)> modal;

  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) override {
    log.push_back(std::to_string(static_cast<int>(style)) + "|" + title + "|" + prompt);
    if (answers.empty()) return Answer::OK;
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  void runModal(Form& form) override {
    if (modal) modal(form);
  }
  void failure(const std::string& description) override { log.push_back("failure|" + description); }
  void notice(const std::string& text) override { log.push_back("notice|" + text); }
};

// Midday, until a test sets it; sleeping moves it on.
class FakeClock : public Clock {
 public:
  float now = 43200;

  float Timer() override { return now; }
  void sleep(float seconds) override { now += seconds; }
};

// A store in memory, by "APPLICATION/SECTION/KEY".
class MemorySettings : public Settings {
 public:
  std::map<std::string, std::string> values;

  std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& defaultValue) override {
    const auto found = values.find(application + "/" + section + "/" + key);
    return found == values.end() ? defaultValue : found->second;
  }
  void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                   const std::string& value) override {
    values[application + "/" + section + "/" + key] = value;
  }
};

// Every character is 5 times its size in points wide, every line 20 times that high: 50 and 200 twips at 10 points.
// As a bitmap it gives the name of its picture and all that was printed on it.
class BlankCanvas : public Canvas {
 public:
  BlankCanvas(std::string_view name, float width, float height) : bytes_(name), width_(width), height_(height) {}

  float width() const override { return width_; }
  float height() const override { return height_; }
  void setFont(const std::string&, float points) override { points_ = points; }
  float TextWidth(std::string_view text) const override {
    return 5 * points_ * static_cast<float>(characterCount(text));
  }
  float TextHeight(std::string_view) const override { return 20 * points_; }
  void print(std::string_view text, float, float) override { bytes_ += "|" + std::string(text); }
  std::string bitmap() const override { return bytes_; }

 private:
  std::string bytes_;
  float width_;
  float height_;
  float points_ = 10;
};

class BlankPictures : public Pictures {
 public:
  float width = 9900;  // twips
  float height = 15420;

  std::unique_ptr<Canvas> open(std::string_view name) override {
    return std::make_unique<BlankCanvas>(name, width, height);
  }
};

// The whole outside world of a run, in memory.
template <class D = LoggedDialogs, class P = BlankPictures>
struct TestWorld {
  D dialogs;
  FakeClock clock;
  MemorySettings settings;
  MemoryFiles files;
  P pictures;

  World world() { return {dialogs, clock, settings, files, pictures}; }
};

}  // namespace orvane::test
