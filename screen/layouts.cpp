#include "screen/layouts.h"

#include <algorithm>
#include <stdexcept>

#include <QDialog>
#include <QLayout>

#include "ui_FrmReadMe.h"
#include "ui_frmContact.h"
#include "ui_frmFeuille.h"
#include "ui_frmPersonnage.h"
#include "ui_frmSplash.h"

namespace orvane {
namespace {

template <class Layout, class Window>
void fill(QWidget& window) {
  Layout().setupUi(qobject_cast<Window*>(&window));
}

struct FormLayout {
  std::string_view form;
  void (*fill)(QWidget&);
};

constexpr FormLayout layouts[] = {
    {"frmPersonnage", fill<Ui::frmPersonnage, QWidget>}, {"frmContact", fill<Ui::frmContact, QDialog>},
    {"frmFeuille", fill<Ui::frmFeuille, QWidget>},       {"frmSplash", fill<Ui::frmSplash, QDialog>},
    {"FrmReadMe", fill<Ui::FrmReadMe, QWidget>},
};

}  // namespace

void layOut(const Form& form, QWidget& window) {
  for (const auto& layout : layouts)
    if (layout.form == form.Name()) return layout.fill(window);
  throw std::logic_error(form.Name() + " has no layout");
}

// Layouts remember the sizes of their parts, and the layouts around them remember theirs.
void measureAnew(QWidget& window) {
  auto parts = window.findChildren<QWidget*>();
  std::reverse(parts.begin(), parts.end());
  for (auto* part : parts << &window) {
    if (part->layout()) part->layout()->invalidate();
    if (part->layout()) part->layout()->activate();
    part->updateGeometry();
  }
}

}  // namespace orvane
