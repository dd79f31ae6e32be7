/// What the readers and writers of files share: calls of the operating system whose failure is an IOException.
#pragma once

#include <string_view>

/// Raises the error of the operating system's last call unless it was done.
void Check(bool done);

/// Writes all bytes to an open file. Raises IOException.
void WriteAll(int descriptor, std::string_view data);

/// Gives an open file the permissions of another one: its mode, and its list of access rights where it has one and the
/// file system of the new one knows those. Raises IOException.
void CopyPermissions(const char* from, int to);

/// An open file, closed when this goes; below 0 none.
struct Descriptor {
    int number;
    explicit Descriptor(int open)
        : number(open)
    {
    }
    Descriptor(const Descriptor&) = delete;
    ~Descriptor();
};
