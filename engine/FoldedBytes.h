/// Texts in few bytes, for comparing many of them.
#pragma once

#include "toolkit/core/Text.h"

/// Replaces `bytes` by those of the folded text: the same for texts that differ in nothing but case, for no others, and
/// in the same order as the folded characters. An ASCII character takes one byte, any other five.
void FoldIntoBytes(StringView text, std::string& bytes);
