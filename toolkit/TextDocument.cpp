#include "toolkit/DocumentText.h"
#include "toolkit/TextBody.h"

#include <QPlainTextDocumentLayout>
#include <algorithm>
#include <utility>

namespace {

/// Commands of Qt's history (32 bytes each, and the texts) beyond which the next text begins it anew.
constexpr int longestHistory = 4'000'000;

bool HasPairs(QStringView units)
{
    return std::ranges::any_of(units, [](QChar unit) { return unit.isLowSurrogate(); });
}

} // namespace

TextDocument::TextDocument(TextColors colors)
    : body_(std::make_unique<Body>(std::move(colors)))
{
    QObject::connect(body_.get(), &QTextDocument::modificationChanged, body_.get(), [this] {
        if (ModifiedChanged) ModifiedChanged();
    });
    QObject::connect(body_.get(), &QTextDocument::contentsChanged, body_.get(), [this] {
        if (Changed) Changed();
    });
}

TextDocument::~TextDocument() = default;

String TextDocument::Text() const { return FromDocument(body_->toRawText()); }

Int64 TextDocument::LineCount() const { return body_->blockCount() - (body_->lastBlock().length() > 1 ? 0 : 1); }

Int64 TextDocument::LinesIn(ColorGroup color) const
{
    const auto found = body_->Counts().beginsIn.find(color.rgb);
    return found == body_->Counts().beginsIn.end() ? 0 : found->second;
}

Int64 TextDocument::MarkedLines() const { return body_->Counts().marked; }

void TextDocument::SetText(StringView text, std::span<const Int64> marks) { body_->Fill(text, marks); }

void TextDocument::ReplaceText(StringView text, std::span<const Int64> marks, TextOrigin origin)
{
    body_->Replace(text, marks);
    body_->SetOrigin(origin);
}

TextOrigin TextDocument::Origin() const { return body_->Origin(); }

bool TextDocument::Modified() const { return body_->isModified(); }

void TextDocument::SetUnmodified() { body_->SetUnmodified(); }

void TextDocument::SetSaved() { body_->SetSaved(); }

TextDocument::Body::Body(TextColors colors)
    : caret(this)
    , top(this)
    , colors_(std::move(colors))
{
    setDocumentLayout(new QPlainTextDocumentLayout(this));
    SetUnmodified();
    connect(this, &QTextDocument::contentsChange, this, &Body::Touched);
    connect(this, &QTextDocument::contentsChange, this,
            [this](int position, int /*removed*/, int added) { Count(position, position + added); });
    connect(this, &QTextDocument::contentsChanged, this, [this] {
        if (programEdits_ > 0 || touchedFrom_ < 0) return;
        // The way back to the state before is this edit now: there the view stays where it is.
        if (const auto before = states_.find(state_); before != states_.end()) {
            before->second.selection.reset();
            before->second.top.reset();
        }
        Recolor();
        // What was known of it was another text: the history can have joined this one to its last step.
        states_.erase(states_.lower_bound(state_), states_.end());
    });
    connect(this, &QTextDocument::undoCommandAdded, this, &Body::ForgetStatesToCome);
}

Int64 TextDocument::Body::Offset(int position) const
{
    if (!pairs_) return position;
    const QString units = toRawText().left(position);
    return position - std::ranges::count_if(units, [](QChar unit) { return unit.isLowSurrogate(); });
}

std::vector<int> TextDocument::Body::Positions(std::span<const Int64> offsets) const
{
    const QString units = pairs_ ? toRawText() : QString();
    std::vector<int> positions;
    int position = 0;
    Int64 character = 0;
    for (const Int64 offset : offsets) {
        if (!pairs_) position = static_cast<int>(std::clamp(offset, Int64{0}, Int64{End()}));
        for (; pairs_ && character < offset && position < End(); ++character)
            for (++position; position < End() && units[position].isLowSurrogate();)
                ++position;
        positions.push_back(position);
    }
    return positions;
}

void TextDocument::Body::Fill(StringView text, std::span<const Int64> marks)
{
    const ProgramEdit edit(*this);
    clear();
    pairs_ = false;
    states_.clear();
    origins_ = {{0, {}}};
    setUndoRedoEnabled(false);
    Wrap(WrapModeFor(text));
    QTextCursor cursor(this);
    cursor.beginEditBlock();
    Insert(cursor, LinesOf(text, marks), false);
    cursor.endEditBlock();
    setUndoRedoEnabled(true);
    SetUnmodified();
    PlaceAtStart();
}

void TextDocument::Body::Replace(StringView text, std::span<const Int64> marks)
{
    const std::vector<Line> lines = LinesOf(text, marks);
    const auto count = static_cast<int>(lines.size()), common = std::min(count, blockCount());
    const auto line = [&lines](int number) -> const Line& { return lines[static_cast<std::size_t>(number)]; };
    int first = 0, behind = 0;
    for (QTextBlock block = begin(); first < common && Holds(block, line(first)); block = block.next())
        ++first;
    if (first == count && count == blockCount()) return;
    for (QTextBlock block = lastBlock(); first + behind < common && Holds(block, line(count - 1 - behind));
         block = block.previous())
        ++behind;
    // The end of the text belongs to the last line alone.
    if (behind == 0 && first == common) --first;

    if (availableUndoSteps() > longestHistory) {
        origins_ = {{0, Origin()}};
        setUndoRedoEnabled(false);
        setUndoRedoEnabled(true);
        states_.clear();
        state_ = 0;
    }
    KeepPlace();
    Wrap(WrapModeFor(text));
    {
        const ProgramEdit edit(*this);
        ReplaceLines(first, behind, lines);
    }
    PlaceAtStart();
    KeepPlace();
}

void TextDocument::Body::ReplaceLines(int first, int behind, std::span<const Line> lines)
{
    QTextCursor cursor(this);
    cursor.beginEditBlock();
    cursor.setPosition(findBlockByNumber(first).position());
    cursor.setPosition(behind > 0 ? findBlockByNumber(blockCount() - behind).position() : End(),
                       QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    Insert(cursor,
           lines.subspan(static_cast<std::size_t>(first), lines.size() - static_cast<std::size_t>(first + behind)),
           behind > 0);
    cursor.endEditBlock();
}

void TextDocument::Body::KeepPlace()
{
    if (keepPlace) keepPlace();
    Keep(state_, {caret.anchor(), caret.position()});
    states_[state_].top = top.position();
}

/// To be told before a text comes in, since that is when it is laid out.
void TextDocument::Body::Wrap(QTextOption::WrapMode mode)
{
    if (std::exchange(wrapMode, mode) != mode && wrapChanged) wrapChanged();
}

void TextDocument::Body::PlaceAtStart()
{
    caret.setPosition(0);
    top.setPosition(0);
    if (takePlace) takePlace();
}

bool TextDocument::Body::Travel(QTextCursor& cursor, bool forth)
{
    const ProgramEdit edit(*this);
    forth ? redo(&cursor) : undo(&cursor);
    const auto state = states_.find(availableUndoSteps());
    if (state == states_.end()) return false;
    // Told so, Qt doesn't join what is typed next to what was typed before this state.
    if (state->second.unmodified || state->second.saved) setModified(false);
    if (const auto& selection = state->second.selection) {
        cursor.setPosition(selection->first);
        cursor.setPosition(selection->second, QTextCursor::KeepAnchor);
    }
    if (!state->second.top) return false;
    caret = cursor;
    top.setPosition(*state->second.top);
    return true;
}

void TextDocument::Body::SetUnmodified()
{
    states_[availableUndoSteps()].unmodified = true;
    setModified(false);
}

void TextDocument::Body::ForgetStatesToCome()
{
    states_.erase(states_.upper_bound(state_), states_.end());
    origins_.erase(origins_.upper_bound(state_), origins_.end());
}

void TextDocument::Body::SetSaved()
{
    for (auto& [steps, state] : states_)
        state.saved = false;
    states_[availableUndoSteps()].saved = true;
    setModified(false);
}

void TextDocument::Body::Touched(int position, int removed, int added)
{
    changedFrom = position;
    changedTo = position + added;
    if (!pairs_ && added > 0) {
        QTextCursor inserted(this);
        inserted.setPosition(position);
        inserted.setPosition(std::min(position + added, End()), QTextCursor::KeepAnchor);
        pairs_ = HasPairs(inserted.selectedText());
    }
    if (programEdits_ > 0) return;
    typedFrom_ = position;
    typedTo_ = removed == 0 && !keepsFormats ? position + added : position;
    touchedFrom_ = position;
    touchedTo_ = position + added;
}
