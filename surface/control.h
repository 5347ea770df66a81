#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "surface/event.h"
#include "surface/failure.h"
#include "surface/observed.h"
#include "surface/property.h"

namespace orvane {

class Control;
class Form;
class TabControl;

// A user could not do this act. The reason is French; nothing has changed.
struct Refusal {
  std::string reason;
};

// What an act does once the focus has moved to its control.
using Effect = std::function<void()>;

// An entry by its exact text or its 0-based position; a row likewise, counted from 1.
using Entry = std::variant<std::string, int>;

// The position, counted from first, of the one among count entries that has exactly that text or stands there. Refuses
// what is not there.
int entryPosition(const Control& control, const Entry& entry, int first, int count,
                  const std::function<std::string(int)>& text);

// Where a control stands: on the form itself, in a frame or a picture box, or on one tab of a tab control.
struct Place {
  Place(Form& theForm) : form(theForm) {}  // NOLINT(google-explicit-constructor): declarations read better
  Place(Control& theHolder);               // NOLINT(google-explicit-constructor)
  Place(TabControl& theHolder, int theTab);

  Form& form;
  Control* holder = nullptr;
  int tab = -1;
};

// The design of a control that is declared without one. As a default argument, {} would come before the end of the
// class that the design is nested in.
template <class Design>
Design byDefault() {
  return {};
}

// Told that a control changed; never changes it.
class ControlObserver {
 public:
  virtual ~ControlObserver() = default;
  virtual void controlChanged(Control& control) = 0;
};

// A named control of a form. Property writes are for code; the prepare functions are what a user does to it.
class Control : public Observed<ControlObserver> {
 public:
  Control(Place place, std::string name);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  // Position in its family, none for a control that stands alone.
  std::optional<int> Index() const { return index_; }
  void setIndex(int index) { index_ = index; }
  // "txtAge", "txtCaract(3)"
  std::string id() const;

  Form& form() const { return place_.form; }
  Control* holder() const { return place_.holder; }
  int tab() const { return place_.tab; }

  bool Enabled() const { return enabled_; }
  void setEnabled(bool enabled) { store(enabled_, enabled); }
  bool Visible() const { return visible_; }
  void setVisible(bool visible) { store(visible_, visible); }

  Event<> GotFocus{*this};
  Event<> LostFocus{*this};

  // What the kind is called in messages.
  virtual std::string_view kind() const = 0;
  // "txtAge (zone de texte)"
  std::string idAndKind() const { return id() + " (" + std::string(kind()) + ")"; }
  // The properties that scripts read, in order; empty for kinds that have none.
  virtual PropertyList properties() const { return {}; }
  virtual std::optional<Value> property(std::string_view name) const;
  virtual bool takesFocus() const { return true; }
  // On the selected tab, enabled and visible, itself and all that holds it; else the reason why not.
  std::optional<std::string> unreachable() const;

  // Each checks that a user could do this to the control, and gives its effect. Throws a Refusal.
  virtual Effect prepareClick();
  virtual Effect prepareType(std::string text);
  virtual Effect preparePick(const Entry& entry);
  virtual Effect prepareRow(const Entry& row);
  virtual Effect prepareToggle(const Entry& row);
  virtual Effect prepareEdit(const Entry& row, std::string text);
  virtual Effect prepareScroll(int value);

 protected:
  // The first half of every setter: stores a value that differs and tells the observers. False when it is equal.
  template <class T>
  bool store(T& field, T value) {
    if (field == value) return false;
    field = std::move(value);
    changed();
    return true;
  }
  void changed() { tell(&ControlObserver::controlChanged, *this); }

 private:
  Place place_;
  std::string name_;
  std::optional<int> index_;
  bool enabled_ = true;
  bool visible_ = true;
};

}  // namespace orvane
