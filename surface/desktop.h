#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "surface/app.h"
#include "surface/form.h"
#include "surface/world.h"

namespace orvane {

enum class Arrangement { Cascade = 0, TileHorizontally = 1, TileVertically = 2, Icons = 3 };

// Told what happens to forms; the screen makes windows of it. Never changes a form.
class DesktopObserver {
 public:
  virtual ~DesktopObserver() = default;
  // A form was shown, or shown again while it is open.
  virtual void shown(Form&) {}
  // The form still lives until the outermost handler has returned.
  virtual void unloaded(Form&) {}
  virtual void activated(Form&) {}
  virtual void captionChanged(Form&) {}
  virtual void refresh(Form&) {}
  virtual void arrange(Arrangement) {}
};

// All forms of one run: which are loaded, in which order, which child is active, which dialog is modal.
class Desktop : public Observed<DesktopObserver> {
 public:
  explicit Desktop(World world) : world_(world) {}
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  World& world() { return world_; }
  // Blocks until the user answers.
  Answer MsgBox(const std::string& prompt, BoxStyle style, const std::string& title = App::Title);
  void Arrange(Arrangement arrangement);

  // The loaded forms, in the order in which they were loaded.
  const std::vector<std::shared_ptr<Form>>& Forms() const { return forms_; }
  // The first loaded form with this name and this caption, null for none.
  Form* find(std::string_view name, std::string_view caption) const;
  // The child that was activated last and is still open.
  Form* activeChild() const { return activation_.empty() ? nullptr : activation_.back(); }
  // The open children, the one activated last at the end.
  const std::vector<Form*>& activationOrder() const { return activation_; }
  // The innermost form that is shown modally.
  Form* modal() const { return modals_.empty() ? nullptr : modals_.back(); }

  // The child of a class that was activated last, null for none.
  template <class F>
  F* lastActivated() const {
    for (auto form = activation_.rbegin(); form != activation_.rend(); ++form)
      if (auto* found = dynamic_cast<F*>(*form)) return found;
    return nullptr;
  }

  void load(Form& form);
  void show(Form& form);
  // Blocks until the form is unloaded.
  void showModal(Form& form);
  // Unloading the frame unloads all children first.
  void unload(Form& form);
  // Makes a child the active one; nothing happens when it is already.
  void activate(Form& form);

  // Runs an act of a user. A failure that nothing caught is told through the dialogs, and the run goes on.
  void perform(const std::function<void()>& act);

  using Observed::tell;

 private:
  friend void runHandler(const Control& owner, const std::function<void()>& handler);
  class Scope;
  void freeUnloaded();
  void runLoad(Form& form);
  void discard(Form& form);
  void closeChildren();
  bool frameCloses() const;
  void activateLast();

  World world_;
  std::vector<std::shared_ptr<Form>> forms_;
  std::vector<Form*> activation_;
  std::vector<Form*> modals_;
  std::vector<std::shared_ptr<Form>> unloaded_;
  int depth_ = 0;
};

}  // namespace orvane
