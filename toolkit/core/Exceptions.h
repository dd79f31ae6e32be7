/// What the platform raises. Each is caught by the routine that calls the platform.
#pragma once

#include "toolkit/core/Text.h"

#include <stdexcept>

/// An error of the platform: its number (that of the operating system or of the network layer) and its words.
class RuntimeException : public std::runtime_error {
public:
    RuntimeException(Int64 errorNumber, String message);

    Int64 ErrorNumber;
    String Message;
};

/// A file could not be opened, read, written or closed.
class IOException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
};

/// The error of that number (`errno`) in the words of the operating system: 2 gives "No such file or directory".
IOException SystemError(int errorNumber);
