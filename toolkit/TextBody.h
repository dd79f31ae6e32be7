/// A document of Qt with the colours, the marks and the history of a `TextDocument`. For the sources of this folder
/// only.
#pragma once

#include "toolkit/TextDocument.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>
#include <map>
#include <optional>

/// Offsets count characters, positions are Qt's: 16-bit units.
///
/// After each step the characters have the colours that belong to them, as formats of the text, so that undoing and
/// redoing bring them along. What the user edits is coloured when the change is told; the program's own edits
/// (`ProgramEdit`) see to it themselves.
class TextDocument::Body final : public QTextDocument {
public:
    explicit Body(TextColors colors);

    /// Around every change that isn't the user's.
    class ProgramEdit {
    public:
        explicit ProgramEdit(Body& body)
            : body_(body)
        {
            ++body_.programEdits_;
        }
        ProgramEdit(const ProgramEdit&) = delete;
        ProgramEdit& operator=(const ProgramEdit&) = delete;
        ~ProgramEdit()
        {
            --body_.programEdits_;
            body_.state_ = body_.availableUndoSteps();
        }

    private:
        Body& body_;
    };

    [[nodiscard]] Int64 Offset(int position) const;
    [[nodiscard]] int Position(Int64 offset) const { return Positions({&offset, 1}).front(); }
    /// Of ascending offsets; the end of the document for a character behind it.
    [[nodiscard]] std::vector<int> Positions(std::span<const Int64> offsets) const;
    [[nodiscard]] int End() const { return characterCount() - 1; }

    void Fill(StringView text, std::span<const Int64> marks);
    void Replace(StringView text, std::span<const Int64> marks);
    /// Ascending changes, none overlapping, within an edit of the caller.
    void Change(QTextCursor& cursor, std::span<const TextChange> changes);
    /// Where a CR of these lines isn't drawn as what it is by now.
    [[nodiscard]] std::vector<int> WrongReturns(int from, int to) const;
    void MendReturns(QTextCursor& cursor, const std::vector<int>& places) const;
    /// Whether a line shows the colour of a mark.
    [[nodiscard]] bool ShowsMark(const QTextBlock& block) const;

    /// The anchor and the caret of a selection.
    using Range = std::pair<int, int>;
    /// Undoing or redoing that leads to a state, a number of undo steps, brings the selection back.
    void Keep(int state, Range selection)
    {
        states_[state].selection = selection;
        states_[state].top.reset();
    }
    /// One step back or forth; moves the cursor. True if caret and top are to be taken anew.
    bool Travel(QTextCursor& cursor, bool forth);
    void SetUnmodified();
    void SetSaved();
    void SetOrigin(TextOrigin origin) { origins_[availableUndoSteps()] = origin; }
    [[nodiscard]] TextOrigin Origin() const { return std::prev(origins_.upper_bound(availableUndoSteps()))->second; }

    void Wrap(QTextOption::WrapMode mode);

    /// The caret and the first character on screen while the document isn't shown.
    QTextCursor caret, top;
    QTextOption::WrapMode wrapMode = QTextOption::WrapAtWordBoundaryOrAnywhere;
    /// The text area that shows the document keeps its caret and top here, takes them or the mode of wrapping anew.
    std::function<void()> keepPlace, takePlace, wrapChanged;
    /// How many lines begin in a colour, and how many show that of a mark.
    struct Tally {
        std::map<std::uint32_t, Int64> beginsIn;
        Int64 marked = 0;
    };
    [[nodiscard]] const Tally& Counts() const { return *tally_; }

    /// What the last change touched.
    int changedFrom = 0, changedTo = 0;
    /// What comes in now brings its formats along.
    bool keepsFormats = false;

private:
    struct Line {
        StringView text;
        bool marked;
        bool operator==(const Line&) const = default;
    };
    struct Repaint {
        int start, length;
        QTextCharFormat format;
    };
    /// A state of the history.
    struct State {
        bool unmodified = false, saved = false;
        std::optional<Range> selection;
        /// The first character on screen, where that is to come back too.
        std::optional<int> top;
    };

    static std::vector<Line> LinesOf(StringView text, std::span<const Int64> marks);
    const QTextCharFormat& Format(bool marked, std::optional<ColorGroup> color);
    /// All but the first and the last lines of the document become the corresponding ones of `lines`.
    void ReplaceLines(int first, int behind, std::span<const Line> lines);
    void Insert(QTextCursor& cursor, std::span<const Line> lines, bool endsLast);
    /// Whether the document's line is that very line, marked from end to end or not at all.
    [[nodiscard]] bool Holds(const QTextBlock& block, const Line& line) const;
    void PlaceAtStart();
    void KeepPlace();
    void Touched(int position, int removed, int added);
    void Count(int from, int to);
    void Recolor();
    [[nodiscard]] std::vector<ColorSpan> Spans(StringView line) const
    {
        return colors_.ofLine ? colors_.ofLine(line) : std::vector<ColorSpan>();
    }
    [[nodiscard]] std::optional<ColorGroup> WholeColor(StringView text) const;
    static void Paint(QTextCursor& cursor, std::vector<Repaint>& repaints);
    void Collect(int from, int to, std::vector<Repaint>& repaints);
    void Collect(const QTextBlock& block, std::vector<Repaint>& repaints);
    void ForgetStatesToCome();

    TextColors colors_;
    std::shared_ptr<Tally> tally_ = std::make_shared<Tally>();
    std::map<std::pair<bool, std::int64_t>, QTextCharFormat> formats_;
    /// False as long as offsets and positions are the same.
    bool pairs_ = false;
    int programEdits_ = 0;
    /// What the user touched and isn't coloured yet; of that, what he put in.
    int touchedFrom_ = -1, touchedTo_ = -1, typedFrom_ = 0, typedTo_ = 0;
    /// The number of undo steps of the present state, and what is known of some states.
    int state_ = 0;
    std::map<int, State> states_;
    /// By the states in which a text came in.
    std::map<int, TextOrigin> origins_ = {{0, {}}};
};
