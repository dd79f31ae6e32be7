/// What is packed in a 7z archive.
#pragma once

#include <string>

/// The bytes from that offset on, fewer at the end of the file. Raises IOException.
std::string ReadAt(int file, std::uint64_t offset, std::size_t size);

/// Whether a file with this beginning is a 7z archive.
inline bool IsArchive(std::string_view beginning) { return beginning.starts_with("7z\xBC\xAF\x27\x1C"); }

/// The beginning of the first file in the archive, at most `size` bytes; "" for what is no sound archive or not packed
/// by LZMA alone. Whatever the archive says, no more than `size` bytes and a header of 64 KiB get into memory.
/// Raises IOException.
std::string Unpack(int archive, std::size_t size);
