/// Reports in sections.
#pragma once

#include "toolkit/core/Text.h"

/// Adds a section to a report, if it has any item: a title, and one item a line. A line of one blank separates it from
/// what is there.
void AppendSection(String& report, StringView title, std::span<const String> items);
