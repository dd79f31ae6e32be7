/// Texts from files and from the network.
#pragma once

#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextEncoding.h"

#include <optional>

namespace Fncts {

/// The text of bytes in the program's encoding; bytes that are no text are taken out (`NettoiBadEncod`).
String TextOfBytes(const Bytes& data);

/// The whole text of a file, with the line ends that it has. "" for no file, a missing one, and one that can't be read.
String LireFichier(const std::optional<FolderItem>& fichier);

} // namespace Fncts
