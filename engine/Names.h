/// The names of files and folders as the program compares and shows them.
#pragma once

#include "toolkit/core/Text.h"

namespace Fncts {

/// The text in the one canonical form (NFC) that names are compared in: a decomposed "é" becomes a single character.
String NrmStgEnc(StringView text);

/// Swaps ":" and "/" in a file name. A name on disk may hold ":", which the path form needs between names.
///
/// With `toPath` the name comes from the disk and each ":" becomes "/"; `normalise` also brings it to the canonical
/// form. Otherwise the name goes to the disk, each "/" becomes ":", and `normalise` has no effect.
String Naff(StringView name, bool toPath, bool normalise);

} // namespace Fncts
