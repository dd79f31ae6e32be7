/// What two texts hold that should hold the same lines.
#pragma once

#include "engine/SceneryText.h"

/// Names for the user each line that the file or the result holds more often than the other, once each and in its order
/// there, and where they have different numbers of blank lines, tells these.
String ExplainDifferences(std::span<const SceneryLine> file, std::span<const SceneryLine> result);
