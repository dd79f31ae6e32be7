/// Lets the operating system fail.
///
/// FileFaults.cpp defines functions by which the C library makes system calls. In a program that it is linked into,
/// they come before those of the C library, for the program and for the libraries that it uses.
#pragma once

#include <string>
#include <vector>

struct Fault {
    /// Number of the call, from 1; with 0 all calls are only counted.
    int call = 0;
    /// What `errno` becomes; with 0 the process ends in place of the call, as by kill -9.
    int error = 0;
    /// All later calls fail too.
    bool forGood = false;
};

/// While one lives, calls that touch what is below the folder are counted, and fail as the fault says. No read or write
/// takes more than 4096 bytes, so that a file of some size takes several of them.
struct FileFaults {
    explicit FileFaults(std::string below, Fault planned = {})
        : folder(std::move(below))
        , fault(planned)
    {
        current = this;
    }
    ~FileFaults() { current = nullptr; }
    FileFaults(const FileFaults&) = delete;
    FileFaults& operator=(const FileFaults&) = delete;

    static inline FileFaults* current = nullptr;
    const std::string folder;
    const Fault fault;
    /// Name and path of each call that was made.
    std::vector<std::string> calls;
};
