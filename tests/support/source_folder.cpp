#include "tests/support/source_folder.h"

std::filesystem::path orvane::test::sourceFolder() { return ORVANE_SOURCE_DIR; }
