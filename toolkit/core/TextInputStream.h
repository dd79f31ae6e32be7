/// Reading of text files.
#pragma once

#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextEncoding.h"

/// The content of a text file. What it gives are bytes: whether they are valid text is the caller's question.
class TextInputStream {
public:
    /// Reads a regular file, or an alias of one; all else (folder, pipe, device) raises IOException without blocking.
    /// So does a file of more than `MaximumSize` bytes.
    static TextInputStream Open(const FolderItem& file);

    /// All bytes from here to the end. Raises IOException where the file could not be read to its end.
    Bytes ReadAll();
    /// The next line without its line end, which may be LF, CR LF or CR. Raises IOException behind what could be read.
    Bytes ReadLine();
    /// Raises IOException behind what could be read.
    [[nodiscard]] bool EndOfFile() const;

    /// 256 MiB: some ten thousand times a large scenery_packs.ini. As characters they are 1 GiB, which is handled more
    /// than once.
    static constexpr Int64 MaximumSize = Int64{256} << 20;

private:
    explicit TextInputStream(const FolderItem& file);

    Bytes data_;
    std::size_t position_ = 0;
    /// What ended the reading before the end of the file, or 0.
    int error_ = 0;
};
