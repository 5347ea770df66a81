#include "shell/frmSplash.h"

#include "surface/desktop.h"

namespace orvane {

frmSplash::frmSplash(Desktop& desktop) : Form(desktop, {.name = "frmSplash", .role = Role::Dialog}) {
  on(cmdClose.Click, &frmSplash::cmdClose_Click);
}

void frmSplash::Form_Load() { lblVersion.setCaption("Version " + App::version()); }

void frmSplash::cmdClose_Click() { Unload(); }

}  // namespace orvane
