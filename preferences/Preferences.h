/// The preferences file as values.
///
/// A line is a key, the separator " :@: " and a value. The first separator of a line counts, so that a value may hold
/// another; keys ignore case; of two lines with one key the later wins; a line with another key or with none is passed
/// over. There is no quoting.
#pragma once

#include "toolkit/core/Text.h"

#include <optional>
#include <vector>

/// A window's place in points. The values of a fresh one fit no screen.
struct WindowGeometry {
    Int16 left = -1, top = -1, width = 0, height = 0;
    bool operator==(const WindowGeometry&) const = default;
};

/// What the file says; an optional without a value leaves its control as it is.
struct Preferences {
    /// The old key: of this one the first line counts.
    std::optional<bool> AffHelpTag = {};
    bool DrapAffBtnSpecA = false, archive = false;
    /// Percent; -1 stands for none.
    Int16 volume = -1;
    WindowGeometry geometry;
    /// Where the model comes from: 0 the model file, 1 the model URL.
    std::optional<int> sourceModel;
    std::optional<String> modelFile, modelUrl, archiveFolder, spackFile;
    /// Points.
    Int16 WspecAheight = 0;
    String PathSpecA;
    std::vector<String> TabSpecAorg, TabSpecAdest1, TabSpecAdest2;
};

/// Takes over the setting of one line of a preferences file, after those of the lines before it.
///
/// False for a value that is passed over: a source of the model other than 0 and 1, and a path or an address of more
/// than 65,536 characters, which no field could show in good time.
bool ReadPreference(Preferences& preferences, StringView line);

/// Whether two programs have changed the rows of the replacement table, each in its own way.
bool TablesClash(const Preferences& ours, const Preferences& oursBefore, const Preferences& theirs,
                 const Preferences& theirsBefore);

/// Our settings, with what another program has changed meanwhile and we haven't. The rows of the replacement table stay
/// together; the file names above them are settings of their own.
Preferences MergedPreferences(const Preferences& ours, const Preferences& oursBefore, const Preferences& theirs,
                              const Preferences& theirsBefore);

/// The whole file: a line for each setting, in a fixed order. Line ends inside a text are left out; the old key of
/// `AffHelpTag` is not written.
String WritePreferences(const Preferences& preferences);

/// The stored place if a window of at least that size fits there, and else the whole screen but for a margin: 30 points
/// from the left, 60 from the top, 60 points less than the screen in width and height.
///
/// 48 points at the top belong to the menu bar and the window's title.
WindowGeometry FitToScreen(const WindowGeometry& stored, int minimumWidth, int minimumHeight, int screenWidth,
                           int screenHeight);

/// The place to store for a window: its own, moved and made smaller as far as `FitToScreen` wants it.
WindowGeometry WithinScreen(int left, int top, int width, int height, int screenWidth, int screenHeight);
