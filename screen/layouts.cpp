#include "screen/layouts.h"

#include <algorithm>
#include <stdexcept>

#include <QDialog>
#include <QLayout>

#include "editor/frmContact.h"
#include "editor/frmPersonnage.h"
#include "sheet/frmFeuille.h"
#include "shell/FrmReadMe.h"
#include "shell/frmSplash.h"
#include "ui_FrmReadMe.h"
#include "ui_frmContact.h"
#include "ui_frmFeuille.h"
#include "ui_frmPersonnage.h"
#include "ui_frmSplash.h"

namespace orvane {
namespace {

template <class FormKind, class Layout, class Window>
bool fill(const Form& form, QWidget& window) {
  if (!dynamic_cast<const FormKind*>(&form)) return false;
  Layout().setupUi(dynamic_cast<Window*>(&window));
  return true;
}

constexpr bool (*layouts[])(const Form&, QWidget&) = {
    fill<frmPersonnage, Ui::frmPersonnage, QWidget>, fill<frmContact, Ui::frmContact, QDialog>,
    fill<frmFeuille, Ui::frmFeuille, QWidget>,       fill<frmSplash, Ui::frmSplash, QDialog>,
    fill<FrmReadMe, Ui::FrmReadMe, QWidget>,
};

}  // namespace

void layOut(const Form& form, QWidget& window) {
  for (const auto& layout : layouts)
    if (layout(form, window)) return;
  throw std::logic_error(form.Name() + " has no layout");
}

// Layouts remember the sizes of their parts, and the layouts around them remember theirs.
void measureAnew(QWidget& window) {
  auto parts = window.findChildren<QWidget*>();
  std::reverse(parts.begin(), parts.end());
  for (auto* part : parts << &window) {
    if (!part->layout()) continue;
    part->layout()->invalidate();
    part->layout()->activate();
  }
}

}  // namespace orvane
