/// The values that a fuzz target cuts from its input. A target expects laws; one that doesn't hold stops it.
#pragma once

#include "toolkit/core/TextEncoding.h"

#include <fuzzer/FuzzedDataProvider.h>

class Input : public FuzzedDataProvider {
public:
    using FuzzedDataProvider::FuzzedDataProvider;

    /// The bytes before the next "\" that no other follows; the byte behind it goes with it. "\\" stands for "\".
    Bytes Piece() { return ConsumeRandomLengthString(); }
    String Text() { return Encodings::UTF8.Decode(Piece()); }
    Int64 UpTo(Int64 most) { return ConsumeIntegralInRange<Int64>(0, most); }
};

/// What a target does with one input.
void Fuzz(Input& input);
