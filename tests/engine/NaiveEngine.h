/// The reordering once more, as slow and as plain as can be: arrays that are searched from end to end.
#pragma once

#include "tests/engine/Outcome.h"

Outcome RunNaively(StringView model, StringView source, const std::vector<String>& folders);
