#pragma once

#include <QByteArray>

#include "paper/paper_page.h"

namespace orvane {

// A PDF of the pages with nothing but the texts of their sides, in the font of sheets, which is embedded.
QByteArray textLayer(const std::vector<PaperPage>& pages);

}  // namespace orvane
