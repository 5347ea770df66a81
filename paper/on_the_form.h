#pragma once

#include <string>

#include <QByteArray>

#include "paper/paper_page.h"

namespace orvane {

// What a PDF says of itself; an empty author is none.
struct PaperNotes {
  std::string title;
  std::string author;
};

// The PDF of the pages: their text layer with the form under each side, in a file that knows no hour.
std::string onTheForm(const QByteArray& textLayer, const std::vector<PaperPage>& pages, const PaperNotes& notes);

}  // namespace orvane
