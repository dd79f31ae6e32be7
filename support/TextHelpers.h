/// Small operations on texts.
#pragma once

#include "toolkit/core/TextEncoding.h"

namespace Fncts {

/// Piece number `part`, counted from 1, of a text that is cut at its placeholders "¿%": the second of "“¿%” ?" is "”
/// ?". A part that the text doesn't have gives "" and a message for the authors.
String FracTexte(StringView text, Int16 part);

/// What is left of bytes that are no valid text when all that can't stand byte for byte is dropped: in UTF-8 the plain
/// ASCII, so that valid characters of several bytes go too. Three beeps and "" for what stays invalid all the same.
Bytes NettoiBadEncod(std::string_view text, const TextEncoding& encoding);

/// Puts the text on the clipboard.
void PressPapTxt(StringView text);

} // namespace Fncts
