/// Writing of text files.
#pragma once

#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextEncoding.h"

#include <utility>

/// A text file that is being written.
///
/// The file is written in place: its permissions and owner stay, and of an alias the file behind it is written. Each
/// operation raises IOException when it fails; what is on disk then is what was written until then, or the old content
/// where nothing was. A program that dies leaves the old or the new text, unless it dies within the one write.
class TextOutputStream {
public:
    /// Opens an existing regular file, whose content is replaced, or makes a new one. A file that nobody may write is
    /// refused, also to a user who could write it all the same, and left as it is; so is a folder, a pipe or a device.
    ///
    /// `size` bytes are going to be written: where they are above the user's limit or quota, or the file system can
    /// tell that they don't fit, the file is refused.
    static TextOutputStream Create(const FolderItem& file, Int64 size);

    TextOutputStream(TextOutputStream&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1))
    {
    }
    ~TextOutputStream();

    void Write(const Bytes& data);
    /// Cuts off what is left of the old content, and waits until the bytes have reached the file system. Only then is
    /// the file written.
    void Close();

private:
    explicit TextOutputStream(int descriptor)
        : descriptor_(descriptor)
    {
    }
    int descriptor_;
};
