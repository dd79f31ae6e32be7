#include "toolkit/DesktopTextArea.h"

#include "toolkit/Appearance.h"
#include "toolkit/DocumentText.h"
#include "toolkit/TextEditor.h"

#include <QApplication>
#include <algorithm>

DesktopTextArea::DesktopTextArea(DesktopWindow& window, const Placement& placement, int fontSize)
    : DesktopUIControl(window, new TextEditor, placement)
{
    if (fontSize > 0)
        FitFont(*widget_, {}, 0, fontSize);
    else
        widget_->setFont(QApplication::font());
    SetDocument(own_);
    QObject::connect(&editor(), &QPlainTextEdit::cursorPositionChanged, &editor(), [this] {
        if (CaretMoved) CaretMoved();
    });
}

DesktopTextArea::~DesktopTextArea()
{
    CaretMoved = nullptr;
    editor().Leave();
    editor().setDocument(nullptr);
}

TextEditor& DesktopTextArea::editor() const { return *static_cast<TextEditor*>(widget_); }

void DesktopTextArea::SetDocument(TextDocument& document) { editor().Show(*document.body_); }

String DesktopTextArea::Text() const { return FromDocument(editor().Body().toRawText()); }

void DesktopTextArea::SetText(StringView text) { editor().Body().Fill(text, {}); }

void DesktopTextArea::SetReadOnly(bool readOnly) { editor().setReadOnly(readOnly); }

Int64 DesktopTextArea::CaretLine() const { return editor().textCursor().blockNumber(); }

String DesktopTextArea::TextOfCaretLine() const { return FromDocument(editor().textCursor().block().text()); }

bool DesktopTextArea::CaretLineShowsMark() const { return editor().Body().ShowsMark(editor().textCursor().block()); }

Int64 DesktopTextArea::SelectionStart() const { return editor().Body().Offset(editor().textCursor().selectionStart()); }

Int64 DesktopTextArea::SelectionLength() const
{
    return editor().Body().Offset(editor().textCursor().selectionEnd()) - SelectionStart();
}

String DesktopTextArea::SelectedText() const { return FromDocument(editor().textCursor().selectedText()); }

void DesktopTextArea::Select(Int64 start, Int64 length)
{
    const Int64 ends[] = {start, start + length};
    const std::vector<int> positions = editor().Body().Positions(ends);
    editor().Select({positions[0], positions[1]});
}

Int64 DesktopTextArea::FirstReturn() const
{
    const QString units = editor().Body().toRawText();
    const auto found = std::ranges::find_if(units, IsReturn);
    return found == units.end() ? -1 : editor().Body().Offset(static_cast<int>(found - units.begin()));
}

DesktopTextArea::Passage DesktopTextArea::SelectedLines() const
{
    const TextDocument::Body& body = editor().Body();
    QTextCursor cursor = editor().textCursor();
    const QTextBlock last = body.findBlock(cursor.selectionEnd());
    int start = body.findBlock(cursor.selectionStart()).position();
    for (int back = 0; back < 2 && start > 0; ++back)
        start -= start > 1 && body.characterAt(start - 1).isLowSurrogate() ? 2 : 1;
    cursor.setPosition(start);
    cursor.setPosition(std::min(last.position() + last.length(), body.End()), QTextCursor::KeepAnchor);
    return {body.Offset(start), FromDocument(cursor.selectedText())};
}

void DesktopTextArea::Change(std::span<const TextChange> changes, Int64 start, Int64 length)
{
    TextDocument::Body& body = editor().Body();
    editor().Edit([&](QTextCursor& cursor) {
        body.Change(cursor, changes);
        const Int64 ends[] = {start, start + length};
        const std::vector<int> positions = body.Positions(ends);
        return TextEditor::Range{positions[0], positions[1]};
    });
}

void DesktopTextArea::ScrollTo(Int64 position, Int64 linesAbove)
{
    editor().ShowAt(editor().Body().Position(position), static_cast<int>(linesAbove));
}

DesktopTextArea::Jump DesktopTextArea::GoToMark(bool forward, Int64 linesAbove)
{
    const TextDocument::Body& body = editor().Body();
    const QTextBlock here = editor().textCursor().block();
    QTextBlock block = here;
    Jump jump = Jump::Ahead;
    do {
        block = forward ? block.next() : block.previous();
        if (!block.isValid()) {
            jump = Jump::Around;
            block = forward ? body.begin() : body.lastBlock();
        }
        if (!body.ShowsMark(block)) continue;
        editor().Select({block.position(), block.position()});
        editor().ShowAt(block.position(), static_cast<int>(linesAbove));
        return jump;
    } while (block != here);
    return Jump::None;
}
