/// Reading of text files.
#pragma once

#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextEncoding.h"

#include <memory>

/// An open text file. What it gives are bytes: whether they are valid text is the caller's question.
class TextInputStream {
public:
    /// Opens a regular file, or an alias of one; all else (folder, pipe, device) raises IOException without blocking.
    /// So does a file of more than `MaximumSize` bytes.
    static TextInputStream Open(const FolderItem& file);

    TextInputStream(TextInputStream&&) noexcept;
    ~TextInputStream();

    /// All bytes from here to the end. Raises IOException.
    Bytes ReadAll();
    /// The next line without its line end, which may be LF, CR LF or CR. Raises IOException.
    Bytes ReadLine();
    [[nodiscard]] bool EndOfFile();
    void Close();

    /// 256 MiB: some ten thousand times a large scenery_packs.ini. As characters they are 1 GiB, which is handled more
    /// than once.
    static constexpr Int64 MaximumSize = Int64{256} << 20;

private:
    struct File;
    explicit TextInputStream(std::unique_ptr<File> file);
    std::unique_ptr<File> file_;
};
