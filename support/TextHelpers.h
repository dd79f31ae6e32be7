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

/// The text as a control's label: with `toLabel` each "&" is doubled, without it each "&&" becomes "&" again. `kind` is
/// the kind of the control, 0 to 3; labels of kind 2 keep a doubled "&". Another kind gives a message for the authors.
String MenuLabEt(StringView text, bool toLabel, Int16 kind);

/// Puts the text on the clipboard.
void PressPapTxt(StringView text);

/// What the program was built for and with.
String TypeCompil();

} // namespace Fncts
