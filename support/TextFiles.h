/// Texts from files and from the network.
#pragma once

#include "support/Fncts.h"

namespace Fncts {

/// A text as it was read, with the line ends that it has, and what a user should know of it.
struct Reading {
    String text = {};
    /// Why a file that is there could not be read, in the words of the system; else "".
    String failure = {};
    /// How many lines lost characters because some of the bytes are no text (`NettoiBadEncod`).
    Int64 cleanedLines = 0;
    /// The first of them: its number, counted from 1, and how it was, with U+FFFD in the place of what is no text.
    Int64 firstCleaned = 0;
    String firstCleanedLine = {};
    /// What makes it another kind of text than the program writes, as in "BOM, CR LF", or "".
    String form = {};
    /// Tells this content from another; nothing where no file was read.
    std::optional<std::size_t> fingerprint = {};
};

/// The text of bytes in the program's encoding; bytes that are no text are taken out.
Reading TextOfBytes(const Bytes& data);

/// The whole text of a file. It is "" for no file, a missing one, and one that can't be read.
Reading LireFichier(const std::optional<FolderItem>& fichier);

/// What a user is told of a reading that lost characters; `name` is that of the file or its address.
String CleaningReport(const Reading& reading, StringView name);

/// Writes the text as it stands, in the program's encoding, in place of what the file held. The file is replaced when
/// the new text is complete and has reached the file system; a failure leaves it as it was.
Outcome SauvFichier(const FolderItem& f, StringView text);

} // namespace Fncts
