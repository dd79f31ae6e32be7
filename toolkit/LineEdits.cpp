#include "toolkit/DesktopTextArea.h"
#include "toolkit/TextEditor.h"

#include <QTextDocumentFragment>
#include <algorithm>

namespace {

/// Whole lines, from the first through the last.
struct Lines {
    QTextBlock first, last;

    [[nodiscard]] int Start() const { return first.position(); }
    /// Before the last line's end.
    [[nodiscard]] int End() const { return last.position() + last.length() - 1; }
};

/// The rest behind the last line end of a text is no line.
bool IsRest(const QTextBlock& block) { return block.length() == 1 && !block.next().isValid(); }

/// The lines that the selection has characters of, or those of the caret.
Lines SelectedBy(const QTextCursor& cursor)
{
    const QTextDocument& document = *cursor.document();
    Lines lines{document.findBlock(cursor.selectionStart()), document.findBlock(cursor.selectionEnd())};
    if (lines.first != lines.last && lines.last.position() == cursor.selectionEnd()) lines.last = lines.last.previous();
    return lines;
}

/// Lines with their formats, and no end behind the last of them.
QTextDocumentFragment Copy(const Lines& lines)
{
    QTextCursor cursor(lines.first);
    cursor.setPosition(lines.End(), QTextCursor::KeepAnchor);
    return cursor.selection();
}

void Remove(QTextCursor& cursor, int start, int end)
{
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
}

/// The CRs of the line at a position, which may have become the last one, or isn't it any more.
void MendReturns(TextDocument::Body& body, QTextCursor& cursor, int position)
{
    body.MendReturns(cursor, body.WrongReturns(position, position));
}

} // namespace

/// The line beside the selected ones goes to their other side: as small an edit as can be.
bool DesktopTextArea::MoveLines(bool down, Int64 fixedLines)
{
    const auto [anchor, caret] = editor().Selected();
    const Lines lines = SelectedBy(editor().textCursor());
    const QTextBlock other = down ? lines.last.next() : lines.first.previous();
    if (!other.isValid() || IsRest(other) || IsRest(lines.last)) return false;
    if (std::min(lines.first.blockNumber(), other.blockNumber()) < fixedLines) return false;
    return editor().Edit([&, anchor = anchor, caret = caret](QTextCursor& cursor) {
        const QTextDocumentFragment copy = Copy({other, other});
        const int length = other.length(), start = lines.Start(), end = lines.End();
        if (down)
            Remove(cursor, end, end + length);
        else
            Remove(cursor, start - length, start);
        cursor.setPosition(down ? start : end - length);
        if (!down) cursor.insertText(QStringLiteral("\n"), QTextCharFormat());
        cursor.insertFragment(copy);
        if (down) cursor.insertText(QStringLiteral("\n"), QTextCharFormat());
        const int by = down ? length : -length, last = editor().Body().End();
        MendReturns(editor().Body(), cursor, down ? start : end);
        MendReturns(editor().Body(), cursor, end + by);
        return TextEditor::Range{std::min(anchor + by, last), std::min(caret + by, last)};
    });
}

bool DesktopTextArea::DoubleLines()
{
    const TextEditor::Range selected = editor().Selected();
    const Lines lines = SelectedBy(editor().textCursor());
    if (IsRest(lines.last)) return false;
    return editor().Edit([&](QTextCursor& cursor) {
        const QTextDocumentFragment copy = Copy(lines);
        cursor.setPosition(lines.End());
        cursor.insertText(QStringLiteral("\n"), QTextCharFormat());
        cursor.insertFragment(copy);
        MendReturns(editor().Body(), cursor, lines.End());
        return selected;
    });
}

bool DesktopTextArea::DeleteLines()
{
    const Lines lines = SelectedBy(editor().textCursor());
    const int start = lines.Start(), end = std::min(lines.End() + 1, editor().Body().End());
    if (start == end) return false;
    return editor().Edit([&](QTextCursor& cursor) {
        Remove(cursor, start, end);
        return TextEditor::Range{start, start};
    });
}
