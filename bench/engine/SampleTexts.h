/// Models and sources of any size, in shapes that a reordering could find hard.
#pragma once

#include "toolkit/core/Text.h"

enum class Shape {
    /// The source holds the model's packs in another order.
    Shuffled,
    /// The same with every pack in the other state.
    Inverted,
    /// The model doesn't know the first half of the source: each of these lines goes in above all others.
    FirstHalfUnknown,
    /// The model knows no line of the source.
    NothingKnown,
    /// Both texts hold every line twice, outside `Custom Scenery`, where the model is refused for that.
    EveryLineTwice,
    /// All names are long and have the same length; only their last characters differ.
    LastCharacter,
};

struct Sample {
    String model, source;
};

/// A model and a source of `lines` lines each, the same ones for the same arguments.
Sample MakeSample(Shape shape, std::size_t lines);
