#pragma once

#include <QByteArray>

#include "data/reference_data.h"

namespace orvane {

// The PDF of all powers and drawbacks with their full descriptions, by category in the order of the file, and an
// alphabet of their names behind them: as many pages as that takes. No description is broken between two columns.
QByteArray powerIndex(const ReferenceData& data);

}  // namespace orvane
