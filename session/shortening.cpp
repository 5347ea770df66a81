#include "session/shortening.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <optional>
#include <vector>

#include <QCryptographicHash>

#include "editor/frmPersonnage.h"
#include "player/act_kinds.h"
#include "player/script_parser.h"
#include "session/full_state.h"
#include "session/past_text.h"
#include "session/session.h"
#include "surface/failure.h"
#include "surface/text.h"

namespace orvane {
namespace {

// Nobody is there: what waits is closed, what asks gets its first button.
class NoUser final : public Dialogs {
 public:
  Answer MsgBox(const std::string&, BoxStyle style, const std::string&) override { return buttonsOf(style).front(); }
  void runModal(Form&) override {}
  void failure(const std::string&) override {}
  void notice(const std::string&) override {}
};

class NoTime final : public Clock {
 public:
  float Timer() override { return passed_; }
  void sleep(float seconds) override { passed_ += seconds; }

 private:
  float passed_ = 0;
};

// What a session comes to.
struct Result {
  std::string windows;
  std::string sheets;
  std::map<std::string, QByteArray> saved;

  bool operator==(const Result&) const = default;
};

// Of the characters whose windows are open.
void visualiseAll(Session& session) {
  const auto forms = session.run().desktop().Forms();
  for (const auto& form : forms)
    if (auto* character = dynamic_cast<frmPersonnage*>(form.get()); character && character->isLoaded())
      session.user().click(character->cmdPrintPreview);
}

// Throws a Failure where an act is refused.
Result resultOf(const std::string& text, Files& files, Pictures& pictures) {
  NoUser dialogs;
  NoTime clock;
  NoSettings settings;
  Session session({dialogs, clock, settings, files, pictures}, [](const std::string&) {});
  Result result;
  std::string fault;
  session.refused = [&](const Act& act, const std::string& reason) {
    fault = "Ligne " + std::to_string(act.line) + " : " + reason;
  };
  session.arrived = [&] { result.windows = fullState(session.run().desktop()); };
  session.saved() = [&](const std::string& path, const std::string& bytes) {
    result.saved[path] = QCryptographicHash::hash(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())),
                                                  QCryptographicHash::Sha256);
  };
  session.run().Main();
  const Script past = parseScript("session", text);
  session.playPast(past);
  if (!fault.empty()) throw Failure(fault);
  visualiseAll(session);
  result.sheets = fullState(session.run().desktop());
  return result;
}

// An act, with what is meant for it: positions among the lines.
struct Step {
  std::vector<std::size_t> lines;
  const Act* act = nullptr;
};

class Shortening {
 public:
  using Progress = std::function<bool(std::size_t, std::size_t)>;

  Shortening(const std::string& session, Files& files, Pictures& pictures, const Progress& progress)
      : script_(parseScript("session", session)),
        still_(files, isPast_),
        pictures_(pictures),
        progress_(progress),
        wanted_(resultOf(session, still_, pictures)) {
    for (std::string_view rest = session; !rest.empty();) lines_.emplace_back(cutLine(rest));
    takeSteps();
    isKept_.assign(lines_.size(), true);
  }

  Shortened run() {
    std::vector<std::size_t> all(steps_.size());
    std::iota(all.begin(), all.end(), 0);
    std::vector<std::size_t> likely;
    std::copy_if(all.begin(), all.end(), std::back_inserter(likely), [this](auto step) { return isLikely(step); });
    leaveOut(likely);
    settled_ = 0;
    leaveOut(all);
    return {text(isKept_), steps_.size(), steps_.size() - leftOut()};
  }

 private:
  using Steps = std::vector<std::size_t>;

  void takeSteps() {
    Step step;
    for (const auto& act : script_.acts) {
      if (act.kind->prints) continue;
      step.lines.push_back(static_cast<std::size_t>(act.line) - 1);
      step.act = &act;
      if (isAhead(act)) continue;
      steps_.push_back(std::exchange(step, {}));
    }
  }

  // A text that is typed over by the next act, or a move of the focus.
  bool isLikely(std::size_t step) const {
    const Act& act = *steps_[step].act;
    if (act.kind == actNamed("focus")) return true;
    if (act.kind != actNamed("type") || step + 1 == steps_.size()) return false;
    const Act& next = *steps_[step + 1].act;
    return next.kind == act.kind && next.target.text() == act.target.text();
  }

  bool isOut(std::size_t step) const { return !isKept_[steps_[step].lines.front()]; }
  std::size_t leftOut() const {
    std::size_t count = 0;
    for (std::size_t step = 0; step < steps_.size(); ++step) count += isOut(step);
    return count;
  }

  std::string text(const std::vector<bool>& isKept) const {
    std::string kept;
    for (std::size_t i = 0; i < lines_.size(); ++i)
      if (isKept[i]) kept += lines_[i] + "\n";
    return kept;
  }

  // All at once, else one half after the other.
  void leaveOut(Steps steps) {
    const std::size_t count = steps.size();
    std::erase_if(steps, [this](auto step) { return isOut(step); });
    if (isStopped_ || steps.empty() || works(steps) || steps.size() == 1) {
      settled_ += count;
      isStopped_ = isStopped_ || !progress_(settled_, steps_.size());
      return;
    }
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
    leaveOut({middle, steps.end()});
    leaveOut({steps.begin(), middle});
  }

  bool works(const Steps& steps) {
    auto isKept = isKept_;
    for (const auto step : steps)
      for (const auto line : steps_[step].lines) isKept[line] = false;
    try {
      if (resultOf(text(isKept), still_, pictures_) != wanted_) return false;
    } catch (const Failure&) {
      return false;
    }
    isKept_ = std::move(isKept);
    return true;
  }

  static constexpr bool isPast_ = true;
  Script script_;
  PastFiles still_;
  Pictures& pictures_;
  const Progress& progress_;
  Result wanted_;
  std::vector<std::string> lines_;
  std::vector<Step> steps_;
  std::vector<bool> isKept_;
  std::size_t settled_ = 0;
  bool isStopped_ = false;
};

}  // namespace

Shortened shortened(const std::string& session, Files& files, Pictures& pictures,
                    const std::function<bool(std::size_t, std::size_t)>& progress) {
  return Shortening(session, files, pictures, progress).run();
}

}  // namespace orvane
