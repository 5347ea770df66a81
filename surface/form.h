#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "surface/control.h"
#include "surface/family.h"

namespace orvane {

class Desktop;

// A window: its controls, which are members that enrol in the order of their declaration, and its handlers.
// Made on the heap (std::make_shared); freed when it is unloaded and the outermost handler has returned.
class Form : public std::enable_shared_from_this<Form> {
 public:
  enum class Role { Frame, Child, Dialog };

  struct Design {
    std::string name;
    Role role = Role::Child;
    std::string caption = {};
    // Inside the window's frame, twips.
    float scaleWidth = 0;
    float scaleHeight = 0;
    bool resizable = false;  // by the user
  };

  Form(Desktop& desktop, Design design);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Desktop& desktop() const { return desktop_; }
  const std::string& Name() const { return design_.name; }
  Role role() const { return design_.role; }
  const std::string& Caption() const { return design_.caption; }
  void setCaption(std::string caption);
  bool isResizable() const { return design_.resizable; }
  // For messages: the caption, or the name of a form without one.
  const std::string& title() const { return design_.caption.empty() ? design_.name : design_.caption; }

  // 1 twips, 7 centimetres. The measures of the controls that stand on the form itself count in it.
  int ScaleMode() const { return scaleMode_; }
  void setScaleMode(int mode) { scaleMode_ = mode; }
  float ScaleWidth() const;
  float ScaleHeight() const;

  // Load runs Form_Load once. Show loads first; a form that unloads itself meanwhile is not shown.
  void Load();
  void Show();
  void ShowModal();
  void Unload();
  // Paints at once.
  void Refresh();
  // From the start of Load to the end of Unload.
  bool isLoaded() const { return state_ == State::Loaded || state_ == State::Closing; }
  bool wasUnloaded() const { return state_ == State::Unloaded; }
  bool isVisible() const { return visible_; }

  const std::vector<Control*>& controls() const { return controls_; }
  // By name, and by index for a member of a family; none when there is no such control.
  Control* find(std::string_view name, std::optional<int> index) const;
  Control* focused() const { return focused_; }

  // What a screen says in hints and to screen readers. Each may be empty.
  // Why a control cannot be used, or how far it goes and what it costs.
  virtual std::string hint(const Control&) const { return {}; }
  virtual std::string tabHint(const Control&, int) const { return {}; }
  // What an arrow button has stepped: "Corps 2, reste 8".
  virtual std::string stepped(const Control&) const { return {}; }

 protected:
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Unload() {}
  // For the form's own book-keeping, whichever way it ends.
  virtual void unloaded() {}

  // Wires an event to the member function that handles it; a family's handler gets the index first.
  template <class F, class... Args>
  void on(Event<Args...>& event, void (F::*handler)(Args...)) {
    event.handle([this, handler](Args... args) { (static_cast<F*>(this)->*handler)(args...); });
  }
  template <class F, class C, class... Args, class Owner>
  void on(Family<C>& family, Event<Args...> Owner::*event, void (F::*handler)(std::int16_t, Args...)) {
    for (int i = 0; i < family.size(); ++i)
      (family(i).*event).handle([this, handler, i](Args... args) {
        (static_cast<F*>(this)->*handler)(static_cast<std::int16_t>(i), args...);
      });
  }

 private:
  friend class Control;
  friend class Desktop;
  friend class User;
  enum class State { Fresh, Loaded, Closing, Unloaded };

  void enrol(Control& control) { controls_.push_back(&control); }

  Desktop& desktop_;
  Design design_;
  State state_ = State::Fresh;
  bool visible_ = false;
  int scaleMode_ = 1;
  std::vector<Control*> controls_;
  Control* focused_ = nullptr;
};

// Twips in one unit of a scale mode.
float twipsPerUnit(int scaleMode);

}  // namespace orvane
