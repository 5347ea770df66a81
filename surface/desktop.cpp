#include "surface/desktop.h"

#include <algorithm>
#include <exception>

#include "surface/system_reason.h"

namespace orvane {

// Forms that are unloaded inside it stay alive to its end.
class Desktop::Scope {
 public:
  explicit Scope(Desktop& desktop) : desktop_(desktop) { ++desktop_.depth_; }
  ~Scope() {
    if (--desktop_.depth_ == 0) desktop_.freeUnloaded();
  }
  Scope(const Scope&) = delete;
  Scope& operator=(const Scope&) = delete;

 private:
  Desktop& desktop_;
};

void runHandler(const Control& owner, const std::function<void()>& handler) {
  if (owner.form().wasUnloaded()) return;
  const Desktop::Scope scope(owner.form().desktop());
  handler();
}

Desktop::~Desktop() { unwatchAll(); }

void Desktop::freeUnloaded() {
  // A destructor may unload further forms.
  while (!unloaded_.empty()) {
    const auto dead = std::move(unloaded_);
    unloaded_.clear();
  }
}

Answer Desktop::MsgBox(const std::string& prompt, BoxStyle style, const std::string& title) {
  return world_.dialogs.MsgBox(prompt, style, title);
}

void Desktop::Arrange(Arrangement arrangement) { tell(&DesktopObserver::arrange, arrangement); }

Form* Desktop::find(std::string_view name, std::string_view caption) const {
  for (const auto& form : forms_)
    if (form->Name() == name && form->Caption() == caption) return form.get();
  return nullptr;
}

void Desktop::load(Form& form) {
  if (form.state_ != Form::State::Fresh) return;
  const Scope scope(*this);
  forms_.push_back(form.shared_from_this());
  form.state_ = Form::State::Loaded;
  runLoad(form);
}

void Desktop::runLoad(Form& form) {
  try {
    form.Form_Load();
  } catch (...) {
    // A form that could not be loaded is no form: nothing half-made stays in Forms, nor has a say at its end.
    if (form.isLoaded()) discard(form);
    throw;
  }
}

void Desktop::show(Form& form) {
  const Scope scope(*this);
  load(form);
  if (!form.isLoaded()) return;
  form.visible_ = true;
  tell(&DesktopObserver::shown, form);
  if (form.role() == Form::Role::Child) activate(form);
}

void Desktop::showModal(Form& form) {
  const Scope scope(*this);
  load(form);
  if (!form.isLoaded()) return;
  form.visible_ = true;
  modals_.push_back(&form);
  try {
    world_.dialogs.runModal(form);
  } catch (...) {
    // Nothing could close it any more, and it would block all others.
    unload(form);
    throw;
  }
  unload(form);
}

void Desktop::unload(Form& form) {
  // What closes already, closes once, also where its own Form_Unload asks for it again.
  if (form.state_ != Form::State::Loaded) return;
  const Scope scope(*this);
  form.state_ = Form::State::Closing;
  if (form.role() == Form::Role::Frame) closeChildren();
  // Whatever goes wrong at its end, the form closes.
  perform([&] { form.Form_Unload(); });
  discard(form);
}

void Desktop::discard(Form& form) {
  const bool wasActive = activeChild() == &form;
  form.state_ = Form::State::Unloaded;
  form.visible_ = false;
  std::erase(activation_, &form);
  std::erase(modals_, &form);
  const auto place = std::find_if(forms_.begin(), forms_.end(), [&](auto& other) { return other.get() == &form; });
  unloaded_.push_back(*place);
  forms_.erase(place);
  form.unloaded();
  tell(&DesktopObserver::unloaded, form);
  if (wasActive) activateLast();
}

void Desktop::closeChildren() {
  const auto open = forms_;
  for (const auto& form : open)
    if (form->role() != Form::Role::Frame) unload(*form);
}

bool Desktop::frameCloses() const {
  return std::any_of(forms_.begin(), forms_.end(), [](const auto& form) {
    return form->role() == Form::Role::Frame && form->state_ == Form::State::Closing;
  });
}

void Desktop::activateLast() {
  if (activation_.empty() || frameCloses()) return;
  Form& next = *activation_.back();
  tell(&DesktopObserver::activated, next);
  next.Form_Activate();
}

void Desktop::activate(Form& form) {
  if (form.role() != Form::Role::Child || !form.isLoaded() || activeChild() == &form) return;
  const Scope scope(*this);
  std::erase(activation_, &form);
  activation_.push_back(&form);
  activateLast();
}

void Desktop::perform(const std::function<void()>& act) {
  const Scope scope(*this);
  try {
    act();
  } catch (const std::exception& error) {
    world_.dialogs.failure(sentenceOn(error));
  }
}

}  // namespace orvane
