#include "screen/make_view.h"

#include <stdexcept>

#include "screen/check_box_view.h"
#include "screen/combo_box_view.h"
#include "screen/command_button_view.h"
#include "screen/form_view.h"
#include "screen/frame_view.h"
#include "screen/label_view.h"
#include "screen/list_box_view.h"
#include "screen/list_view_view.h"
#include "screen/option_button_view.h"
#include "screen/picture_box_view.h"
#include "screen/rich_text_box_view.h"
#include "screen/scroll_bar_view.h"
#include "screen/tab_control_view.h"
#include "screen/text_box_view.h"
#include "surface/shape.h"

namespace orvane {
namespace {

using Maker = std::unique_ptr<View> (*)(Control&, QWidget&, FormView&);

template <class ControlKind, class WidgetKind, class ViewKind>
std::unique_ptr<View> make(Control& control, QWidget& widget, FormView& form) {
  auto* kind = dynamic_cast<ControlKind*>(&control);
  auto* shown = kind ? dynamic_cast<WidgetKind*>(&widget) : nullptr;
  return shown ? std::make_unique<ViewKind>(*kind, *shown, form) : nullptr;
}

// Which widgets show which kinds.
constexpr Maker makers[] = {
    make<TextBox, QLineEdit, LineEditView>,
    make<TextBox, QPlainTextEdit, MultiLineView>,
    make<ComboBox, SteadyCombo, ComboBoxView>,
    make<ListBox, QListWidget, ListBoxView>,
    make<OptionButton, QRadioButton, OptionButtonView>,
    make<CheckBox, QCheckBox, CheckBoxView>,
    make<CommandButton, QAbstractButton, CommandButtonView>,
    make<Label, QLabel, LabelView>,
    make<Frame, QWidget, FrameView>,
    make<Image, QLabel, ImageView>,
    make<ListView, QTreeWidget, ListViewView>,
    make<TabControl, QTabWidget, TabControlView>,
    make<PictureBox, QWidget, PictureBoxView>,
    make<ScrollBar, QScrollBar, ScrollBarView>,
    make<RichTextBox, QTextBrowser, RichTextBoxView>,
};

[[noreturn]] void missing(const Control& control, const std::string& what) {
  throw std::logic_error(control.form().Name() + ": " + control.id() + " has no widget" + what);
}

}  // namespace

std::unique_ptr<View> makeView(Control& control, QWidget* widget, FormView& form) {
  if (dynamic_cast<const Shape*>(&control)) return nullptr;  // its picture paints it
  if (!widget) missing(control, "");
  for (const auto& maker : makers)
    if (auto view = maker(control, *widget, form)) return view;
  missing(control, std::string(" that suits it but a ") + widget->metaObject()->className());
}

}  // namespace orvane
