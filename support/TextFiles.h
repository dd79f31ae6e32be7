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

/// Writes the text to the file as it stands, in the program's encoding, in place of what the file held. True once the
/// bytes have reached the file system; false when anything failed on the way.
bool SauvFichier(const FolderItem& f, StringView text);

} // namespace Fncts
