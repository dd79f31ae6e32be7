/// Where a control stands in its window.
#pragma once

/// The window edges that a control follows when the window is resized, as bits.
namespace Lock {
inline constexpr unsigned Left = 1, Top = 2, Right = 4, Bottom = 8;
}

/// Geometry in points from the top left corner of the window's content, below the menu bar.
///
/// A control tied to both of two opposite edges grows with the window; one tied to the far edge alone moves with it;
/// one tied to neither stays at its distance from the left or the top.
struct Placement {
    int left, top, width, height;
    unsigned locks = Lock::Left | Lock::Top;
    /// Place in the order of the Tab key, or -1 for a control that the Tab key passes over.
    int tab = -1;
};
