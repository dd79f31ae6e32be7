/// Writing of one file by several programs.
#pragma once

#include "toolkit/core/FolderItem.h"

/// Keeps other copies of the program out while one reads a file and replaces it. Where the file isn't there yet, where
/// the file system knows no locks, and after half a second of waiting, it does without.
class FileLock {
public:
    explicit FileLock(const FolderItem& file);
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

private:
    int descriptor_ = -1;
};
