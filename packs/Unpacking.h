/// What is packed in a 7z archive.
#pragma once

#include <string>

/// Whether a file with this beginning is a 7z archive.
inline bool IsArchive(std::string_view beginning) { return beginning.starts_with("7z\xBC\xAF\x27\x1C"); }

/// Whether libarchive is there, which is loaded at the first call.
bool CanUnpack();

/// The beginning of the first file in the archive, at the most `size` bytes; "" for what is no sound archive. The open
/// file stays the caller's.
std::string Unpack(int archiveFile, std::size_t size);
