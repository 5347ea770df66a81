#include "shell/rich_text.h"

#include "shell/rtf_reader.h"
#include "surface/failure.h"

namespace orvane {

RichText readRichText(std::string_view bytes) {
  if (!bytes.starts_with("{\\rtf")) throw Failure("Ce n'est pas un fichier de texte enrichi (RTF).");
  return RtfReader(bytes).read();
}

}  // namespace orvane
