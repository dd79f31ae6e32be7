#include "toolkit/DocumentText.h"
#include "toolkit/TextBody.h"

#include <QColor>
#include <algorithm>
#include <utility>

namespace {

/// True for the characters of a marked line, whatever their colour.
constexpr int markProperty = QTextFormat::UserProperty + 1;

bool IsMarked(const QTextCharFormat& format) { return format.boolProperty(markProperty); }

/// Calls `take` for each fragment of the line; it answers whether to go on.
template <class Take>
bool AllFragments(const QTextBlock& block, const Take& take)
{
    for (auto at = block.begin(); !at.atEnd(); ++at)
        if (!take(at.fragment())) return false;
    return true;
}

/// The spans of a line with positions in its units for offsets in its characters.
void ToUnits(std::vector<ColorSpan>& spans, QStringView units)
{
    int unit = 0;
    Int64 character = 0;
    const auto go = [&](Int64 offset) {
        for (; character < offset; ++character)
            for (++unit; unit < units.size() && units[unit].isLowSurrogate();)
                ++unit;
        return unit;
    };
    for (ColorSpan& span : spans) {
        const int start = go(span.start), end = go(span.start + span.length);
        span.start = start;
        span.length = end - start;
    }
}

} // namespace

std::vector<TextDocument::Body::Line> TextDocument::Body::LinesOf(StringView text, std::span<const Int64> marks)
{
    std::vector<Line> lines;
    auto mark = marks.begin();
    for (const StringView line : Split(text, EndOfLine::UNIX)) {
        const Int64 end = line.data() + line.size() - text.data();
        const auto behind = std::find_if(mark, marks.end(), [end](Int64 offset) { return offset > end; });
        lines.push_back({line, std::exchange(mark, behind) != behind});
    }
    return lines;
}

const QTextCharFormat& TextDocument::Body::Format(bool marked, std::optional<ColorGroup> color)
{
    if (marked && !color) color = colors_.mark;
    const auto [at, isNew] = formats_.try_emplace({marked, color ? std::int64_t{color->rgb} : -1});
    if (isNew && marked) at->second.setProperty(markProperty, true);
    if (isNew && color) at->second.setForeground(QColor(color->rgb));
    return at->second;
}

/// Puts lines in, with an end behind the last of them if `endsLast`.
void TextDocument::Body::Insert(QTextCursor& cursor, std::span<const Line> lines, bool endsLast)
{
    String run;
    const QTextCharFormat* format = &Format(false, {});
    const auto add = [&](StringView text, const QTextCharFormat& its) {
        if (&its != format && !text.empty()) {
            if (!run.empty()) cursor.insertText(ToDocument(run), *format);
            run.clear();
            format = &its;
        }
        run += text;
    };
    for (const Line& line : lines) {
        Int64 done = 0;
        for (const ColorSpan& span : Spans(line.text)) {
            add(Middle(line.text, done, span.start - done), Format(line.marked, {}));
            add(Middle(line.text, span.start, span.length), Format(line.marked, span.color));
            done = span.start + span.length;
        }
        add(Middle(line.text, done), Format(line.marked, {}));
        if (endsLast || &line != &lines.back()) add(EndOfLine::UNIX, Format(line.marked, {}));
    }
    if (!run.empty()) cursor.insertText(ToDocument(run), *format);
}

bool TextDocument::Body::Holds(const QTextBlock& block, const Line& line) const
{
    return FromDocument(block.text()) == line.text && AllFragments(block, [&line](const QTextFragment& fragment) {
               return IsMarked(fragment.charFormat()) == line.marked;
           });
}

bool TextDocument::Body::ShowsMark(const QTextBlock& block) const
{
    const QColor mark(colors_.mark.rgb);
    return !AllFragments(block, [&mark](const QTextFragment& fragment) {
        const QTextCharFormat format = fragment.charFormat();
        return !IsMarked(format) || format.foreground().color() != mark;
    });
}

/// The colour of a text that is one span from end to end.
std::optional<ColorGroup> TextDocument::Body::WholeColor(StringView text) const
{
    const std::vector<ColorSpan> spans = Spans(text);
    if (spans.size() != 1 || spans[0].length != std::ssize(text)) return {};
    return spans[0].color;
}

void TextDocument::Body::Change(QTextCursor& cursor, std::span<const TextChange> changes)
{
    std::vector<Int64> offsets;
    for (const TextChange& change : changes)
        offsets.insert(offsets.end(), {change.start, change.start + change.length});
    const std::vector<int> positions = Positions(offsets);
    std::vector<Repaint> repaints;
    for (std::size_t i = changes.size(); i-- > 0;) {
        // The format is that of the first character that goes, if any: the one behind the position.
        cursor.setPosition(std::min(positions[2 * i] + 1, End()));
        const bool marked = changes[i].length > 0 && IsMarked(cursor.charFormat());
        cursor.setPosition(positions[2 * i]);
        cursor.setPosition(positions[2 * i + 1], QTextCursor::KeepAnchor);
        const std::optional<ColorGroup> color = WholeColor(changes[i].text);
        const bool wasWhole = color && WholeColor(FromDocument(cursor.selectedText()));
        pairs_ = pairs_ || std::ranges::any_of(changes[i].text, [](char32_t c) { return c > 0xFFFF; });
        cursor.insertText(ToDocument(changes[i].text), Format(marked, color));
        // A keyword in the place of another leaves the rest of its line as it is.
        if (!wasWhole) Collect(positions[2 * i], cursor.position(), repaints);
        Paint(cursor, repaints);
    }
}

/// Colours what the user touched, as a part of the step that he made.
void TextDocument::Body::Recolor()
{
    const ProgramEdit edit(*this);
    std::vector<Repaint> repaints;
    Collect(touchedFrom_, touchedTo_, repaints);
    const std::vector<int> wrongReturns = WrongReturns(touchedFrom_, touchedTo_);
    touchedFrom_ = -1;
    typedFrom_ = typedTo_ = 0;
    if (repaints.empty() && wrongReturns.empty()) return;
    QTextCursor cursor(this);
    cursor.joinPreviousEditBlock();
    Paint(cursor, repaints);
    MendReturns(cursor, wrongReturns);
    cursor.endEditBlock();
}

void TextDocument::Body::MendReturns(QTextCursor& cursor, const std::vector<int>& places) const
{
    for (const int at : places) {
        // The new one goes in behind the old one, so that a caret beside it stays there.
        cursor.setPosition(at + 1);
        cursor.insertText(ReturnUnit(characterAt(at + 1) == QChar::ParagraphSeparator && at + 1 < End()),
                          cursor.charFormat());
        cursor.setPosition(at);
        cursor.deleteChar();
    }
}

std::vector<int> TextDocument::Body::WrongReturns(int from, int to) const
{
    std::vector<int> found;
    for (QTextBlock block = findBlock(from); block.isValid() && block.position() <= to; block = block.next()) {
        const QString units = block.text();
        for (int at = 0; at < units.size(); ++at)
            if (IsReturn(units[at]) && units[at] != ReturnUnit(at + 1 == units.size() && block.next().isValid()))
                found.push_back(block.position() + at);
    }
    return found;
}

void TextDocument::Body::Paint(QTextCursor& cursor, std::vector<Repaint>& repaints)
{
    for (const Repaint& repaint : repaints) {
        cursor.setPosition(repaint.start);
        cursor.setPosition(repaint.start + repaint.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(repaint.format);
    }
    repaints.clear();
}

void TextDocument::Body::Collect(int from, int to, std::vector<Repaint>& repaints)
{
    for (QTextBlock block = findBlock(from); block.isValid() && block.position() <= to; block = block.next())
        Collect(block, repaints);
}

/// Which characters of a line have another colour than they should have.
void TextDocument::Body::Collect(const QTextBlock& block, std::vector<Repaint>& repaints)
{
    const QString units = block.text();
    std::vector<ColorSpan> spans = Spans(FromDocument(units));
    if (pairs_) ToUnits(spans, units);
    auto span = spans.begin();
    const int start = block.position();
    AllFragments(block, [&](const QTextFragment& fragment) {
        const QTextCharFormat format = fragment.charFormat();
        const int end = fragment.position() + fragment.length();
        for (int at = fragment.position(), next = at; at < end; at = next) {
            while (span != spans.end() && start + span->start + span->length <= at)
                ++span;
            next = end;
            std::optional<ColorGroup> color;
            if (span != spans.end()) {
                const auto from = static_cast<int>(start + span->start), to = static_cast<int>(from + span->length);
                if (at >= from) color = span->color;
                next = std::min(end, at >= from ? to : from);
            }
            const bool typed = at >= typedFrom_ && at < typedTo_;
            if (typed || at < typedFrom_) next = std::min(next, typed ? typedTo_ : typedFrom_);
            const QTextCharFormat& wanted = Format(IsMarked(format) && !typed, color);
            if (format != wanted) repaints.push_back({at, next - at, wanted});
        }
        return true;
    });
}
