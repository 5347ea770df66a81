#include "data/return_marker.h"

#include <new>

#include "surface/desktop.h"
#include "surface/text.h"

namespace orvane {
namespace {

constexpr std::string_view marker = "[return]";

}  // namespace

std::string prcReturnToCrLf(std::string_view sText, Dialogs& dialogs) {
  try {
    std::string result;
    for (auto found = sText.find(marker); found != std::string_view::npos; found = sText.find(marker)) {
      result.append(sText.substr(0, found)).append(crLf);
      sText.remove_prefix(found + marker.size());
    }
    return result.append(sText);
  } catch (const std::bad_alloc&) {
    dialogs.MsgBox("Erreur durant la lecture du texte " + shortened(sText), BoxStyle::Critical, App::Title);
    return {};
  }
}

}  // namespace orvane
