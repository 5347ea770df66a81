#pragma once

#include "surface/command_button.h"
#include "surface/form.h"
#include "surface/rich_text_box.h"

namespace orvane {

// The help: one window that shows ReadMe.rtf.
class FrmReadMe : public Form {
 public:
  explicit FrmReadMe(Desktop& desktop);

  RichTextBox rtbReadMe{*this, "rtbReadMe"};
  CommandButton cmdClose{*this, "cmdClose", {.caption = "&Close", .cancel = true}};

 protected:
  void Form_Load() override;

 private:
  void cmdClose_Click();
};

}  // namespace orvane
