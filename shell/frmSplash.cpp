#include "shell/frmSplash.h"

#include "surface/desktop.h"

namespace orvane {

frmSplash::frmSplash(Desktop& desktop) : Form(desktop, {.name = "frmSplash", .role = Role::Dialog}) {
  on(cmdClose.Click, &frmSplash::cmdClose_Click);
}

void frmSplash::Form_Load() {
  lblVersion.setCaption("Version " + std::to_string(App::Major) + "." + std::to_string(App::Minor) + "." +
                        std::to_string(App::Revision));
}

void frmSplash::cmdClose_Click() { Unload(); }

}  // namespace orvane
