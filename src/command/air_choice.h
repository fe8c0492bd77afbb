#pragma once

#include <string_view>

#include "command/byte_streams.h"

namespace zandrell {

// Whether the columns that a header line names make a pair that only real air knows: two of
// kPairFigureNames, but not t and rh, for which the suite has an answer.
bool NamesPairOfRealAir(std::string_view header);

// The same of the first line of a table. What was read for it stands in front of the source again.
bool TableIsOfRealAir(ByteSource& source);

}  // namespace zandrell
