/// The beginning of a file that may be packed in a 7z archive.
#pragma once

#include <string>

/// The first bytes of the file, at most `size`, or of the first file in it when it is an archive; "" for what is no
/// sound archive or not packed by LZMA alone. Whatever the archive says, no more than a few times `size` bytes get into
/// memory. Raises IOException.
std::string BeginningOf(int file, std::size_t size);
