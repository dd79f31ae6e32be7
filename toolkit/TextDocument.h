/// The text that a text area shows, with all that belongs to it.
#pragma once

#include "toolkit/Color.h"

#include <functional>
#include <memory>
#include <span>
#include <vector>

/// What isn't black in a document.
struct TextColors {
    /// What of a line (without its end) has a colour of its own: spans in order, none overlapping.
    std::function<std::vector<ColorSpan>(StringView line)> ofLine;
    /// All the rest of a marked line, through its end.
    ColorGroup mark;
};

/// Where a text came from; it goes with the text, and what is made of that by edits, through the history.
struct TextOrigin {
    /// Characters were taken out of it.
    bool cleaned = false;
    /// In terms of the document's owner.
    Int64 number = 0;
};

/// Characters that another text takes the place of.
struct TextChange {
    Int64 start, length;
    String text;
};

/// A text with colours, marks, a history of its own, a caret and a place where it is scrolled to, whether it is on
/// screen or not (`DesktopTextArea::SetDocument`).
///
/// It gives back exactly the characters that it was given, whatever they are. A mark lies on the characters of its
/// line: it moves, goes and comes back with them. What is typed isn't marked, and `ofLine` colours it at once.
class TextDocument {
public:
    explicit TextDocument(TextColors colors = {});
    TextDocument(const TextDocument&) = delete;
    TextDocument& operator=(const TextDocument&) = delete;
    ~TextDocument();

    [[nodiscard]] String Text() const;

    /// The lines, without the empty one behind the last line end; those that begin in a colour; those that show that of
    /// a mark. Counted along with each change.
    [[nodiscard]] Int64 LineCount() const;
    [[nodiscard]] Int64 LinesIn(ColorGroup color) const;
    [[nodiscard]] Int64 MarkedLines() const;
    /// The text or its colours changed, by whomever.
    std::function<void()> Changed;

    /// Another text, whose history begins here. `marks` are offsets in lines to be marked, ascending. The caret goes to
    /// offset 0.
    void SetText(StringView text, std::span<const Int64> marks = {});
    /// The same as one step that the user can take back; none when nothing changes. Only the lines from the first to
    /// the last that differ are replaced. What was there before goes from the history when it has become too long.
    void ReplaceText(StringView text, std::span<const Int64> marks = {}, TextOrigin origin = {});
    /// That of the text that is there, or that it was edited from.
    [[nodiscard]] TextOrigin Origin() const;

    /// Whether the text is another than at each `SetUnmodified` that the history leads to, and at the last `SetSaved`.
    /// `SetText` is a `SetUnmodified`.
    [[nodiscard]] bool Modified() const;
    void SetUnmodified();
    void SetSaved();
    std::function<void()> ModifiedChanged;

    /// Qt's side of it, for the sources of this folder.
    class Body;

private:
    friend class DesktopTextArea;

    std::unique_ptr<Body> body_;
};
