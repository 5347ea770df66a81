#include "session/full_state.h"

#include <sstream>

#include "player/prints.h"
#include "surface/entry_list.h"
#include "surface/list_view.h"
#include "surface/picture_box.h"

namespace orvane {
namespace {

void printMore(Transcript& transcript, const Control& control) {
  if (dynamic_cast<const EntryList*>(&control) || dynamic_cast<const ListView*>(&control))
    printList(transcript, control);
  if (dynamic_cast<const PictureBox*>(&control)) printPrinted(transcript, control);
}

}  // namespace

std::string fullState(const Desktop& desktop) {
  std::ostringstream all;
  Transcript transcript(all);
  printWindows(transcript, desktop);
  for (const auto& form : desktop.Forms()) {
    printState(transcript, *form);
    for (const auto* control : form->controls()) printMore(transcript, *control);
    if (const auto* focused = form->focused()) transcript.line("focus " + focused->id());
  }
  return all.str();
}

}  // namespace orvane
