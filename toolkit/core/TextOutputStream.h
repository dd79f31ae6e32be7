/// Writing of text files, whole or not at all.
#pragma once

#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextEncoding.h"

/// A text file that is being written: beside the old one under another name, until it is complete.
///
/// Each operation raises IOException when it fails. On disk is the old file until `Close`, and the new one from then
/// on, with no moment between; without `Close` nothing is left of the new one. Only a program that is killed meanwhile
/// leaves a file "Tarnivel NUMBER.tmp" behind, which nothing reads. A name of its own for each program that writes is
/// worth that: two of them never mix what they write.
class TextOutputStream {
public:
    /// Begins the new content of a file, or a new file. It gets the permissions of the old one and, as far as the user
    /// may give them, its owner and group. Of an alias the file behind it is replaced; of a file with several names
    /// (hard links) this name alone leads to the new content.
    ///
    /// Refused are a file that nobody may write, also to a user who could write it all the same, and what is no regular
    /// file: a folder, a pipe, a device.
    explicit TextOutputStream(const FolderItem& file);
    TextOutputStream(const TextOutputStream&) = delete;
    TextOutputStream& operator=(const TextOutputStream&) = delete;
    ~TextOutputStream();

    void Write(const Bytes& data);
    /// Waits until the bytes have reached the file system, and puts the new file in the place of the old one.
    void Close();

private:
    void Discard();

    const std::filesystem::path target_, temporary_;
    int descriptor_ = -1;
};
