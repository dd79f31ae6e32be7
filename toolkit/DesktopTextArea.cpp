#include "toolkit/DesktopTextArea.h"

#include "toolkit/Appearance.h"
#include "toolkit/ColorRuns.h"
#include "toolkit/DocumentText.h"
#include "toolkit/core/QtText.h"
#include "toolkit/core/TextEncoding.h"

#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

namespace {

/// The form in which a text area puts its characters on the clipboard for another one, every one as it is.
const QString exactFormat = QStringLiteral("application/x-tarnivel-text");

} // namespace

class DesktopTextArea::Editor final : public QPlainTextEdit {
public:
    Editor();

    void SetText(StringView text, std::span<const ColorSpan> colors);
    void ReplaceText(StringView text, std::span<const ColorSpan> colors);
    /// The character that begins at a position of the document.
    [[nodiscard]] Int64 Offset(int position) const;
    /// The position of the document at which a character begins, or its end for a character behind it.
    [[nodiscard]] int Position(Int64 offset) const;

protected:
    QMimeData* createMimeDataFromSelection() const override;
    /// A file that misses the field it is meant for leaves no address in the middle of a line.
    bool canInsertFromMimeData(const QMimeData* source) const override
    {
        return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
    }
    void insertFromMimeData(const QMimeData* source) override;

private:
    static void InsertRuns(QTextCursor& cursor, StringView text, std::span<const ColorSpan> colors);
    /// Chooses how a text that comes in as a whole is wrapped.
    void WrapFor(StringView text);
    /// Whether a text of the document has characters of two units each.
    static bool HasPairs(QStringView units)
    {
        return std::ranges::any_of(units, [](QChar unit) { return unit.isLowSurrogate(); });
    }

    /// False as long as offsets and positions are the same.
    bool pairs_ = false;
};

DesktopTextArea::Editor::Editor()
{
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    connect(document(), &QTextDocument::contentsChange, this, [this](int position, int, int added) {
        if (pairs_ || added == 0) return;
        QTextCursor inserted(document());
        inserted.setPosition(position);
        inserted.setPosition(std::min(position + added, document()->characterCount() - 1), QTextCursor::KeepAnchor);
        pairs_ = HasPairs(inserted.selectedText());
    });
}

void DesktopTextArea::Editor::WrapFor(StringView text) { setWordWrapMode(WrapModeFor(text)); }

void DesktopTextArea::Editor::SetText(StringView text, std::span<const ColorSpan> colors)
{
    // Emptied beforehand, the document forgets the format that the caret stood in.
    clear();
    pairs_ = false;
    WrapFor(text);
    setUndoRedoEnabled(false);
    QTextCursor cursor(document());
    InsertRuns(cursor, text, colors);
    setUndoRedoEnabled(true);
    moveCursor(QTextCursor::Start);
    setCurrentCharFormat(QTextCharFormat());
}

void DesktopTextArea::Editor::ReplaceText(StringView text, std::span<const ColorSpan> colors)
{
    WrapFor(text);
    const int scrolled = verticalScrollBar()->value();
    // Begun where the caret stands, the step that is undone brings the caret back there.
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    InsertRuns(cursor, text, colors);
    cursor.endEditBlock();
    moveCursor(QTextCursor::Start);
    setCurrentCharFormat(QTextCharFormat());
    verticalScrollBar()->setValue(scrolled);
}

/// Puts the text in the place of what the cursor has selected.
void DesktopTextArea::Editor::InsertRuns(QTextCursor& cursor, StringView text, std::span<const ColorSpan> colors)
{
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    std::size_t done = 0;
    for (const ColorSpan& run : ColorRuns(colors, static_cast<Int64>(text.size()))) {
        const auto start = static_cast<std::size_t>(run.start), length = static_cast<std::size_t>(run.length);
        cursor.insertText(ToDocument(text.substr(done, start - done)), QTextCharFormat());
        QTextCharFormat format;
        format.setForeground(QColor(run.color.rgb));
        cursor.insertText(ToDocument(text.substr(start, length)), format);
        done = start + length;
    }
    cursor.insertText(ToDocument(text.substr(done)), QTextCharFormat());
    cursor.endEditBlock();
}

Int64 DesktopTextArea::Editor::Offset(int position) const
{
    if (!pairs_) return position;
    const QString units = document()->toRawText().left(position);
    return position - std::ranges::count_if(units, [](QChar unit) { return unit.isLowSurrogate(); });
}

int DesktopTextArea::Editor::Position(Int64 offset) const
{
    const int end = document()->characterCount() - 1;
    if (!pairs_) return static_cast<int>(std::clamp(offset, Int64{0}, Int64{end}));
    const QString units = document()->toRawText();
    int position = 0;
    for (Int64 character = 0; character < offset && position < end; ++character) {
        ++position;
        while (position < end && units[position].isLowSurrogate())
            ++position;
    }
    return position;
}

QMimeData* DesktopTextArea::Editor::createMimeDataFromSelection() const
{
    auto* selected = new QMimeData;
    const QString text = ToQt(FromDocument(textCursor().selectedText()));
    selected->setText(text);
    selected->setData(exactFormat, text.toUtf8());
    return selected;
}

void DesktopTextArea::Editor::insertFromMimeData(const QMimeData* source)
{
    if (isReadOnly() || !source->hasText()) return;
    // What comes from elsewhere may have the line ends of another system.
    const String text = source->hasFormat(exactFormat) ? Encodings::UTF8.Decode(source->data(exactFormat).toStdString())
                                                       : ReplaceLineEndings(FromQt(source->text()), EndOfLine::UNIX);
    if (WrapModeFor(text) == QTextOption::WrapAnywhere) WrapFor(text);
    insertPlainText(ToDocument(text));
    ensureCursorVisible();
}

DesktopTextArea::DesktopTextArea(DesktopWindow& window, const Placement& placement, int fontSize)
    : DesktopUIControl(window, new Editor, placement)
{
    SetBlackOnWhite(*widget_);
    if (fontSize > 0) FitFont(*widget_, {}, 0, fontSize);
}

DesktopTextArea::~DesktopTextArea() = default;

DesktopTextArea::Editor& DesktopTextArea::editor() const { return *static_cast<Editor*>(widget_); }

String DesktopTextArea::Text() const { return FromDocument(editor().document()->toRawText()); }

void DesktopTextArea::SetText(StringView text) { editor().SetText(text, {}); }

void DesktopTextArea::SetStyledText(StringView text, std::span<const ColorSpan> colors)
{
    editor().SetText(text, colors);
}

void DesktopTextArea::SetReadOnly(bool readOnly) { editor().setReadOnly(readOnly); }

Int64 DesktopTextArea::SelectionStart() const { return editor().Offset(editor().textCursor().selectionStart()); }

Int64 DesktopTextArea::SelectionLength() const
{
    return editor().Offset(editor().textCursor().selectionEnd()) - SelectionStart();
}

void DesktopTextArea::ReplaceStyledText(StringView text, std::span<const ColorSpan> colors)
{
    editor().ReplaceText(text, colors);
}

String DesktopTextArea::SelectedText() const { return FromDocument(editor().textCursor().selectedText()); }

void DesktopTextArea::Select(Int64 start, Int64 length)
{
    QTextCursor cursor = editor().textCursor();
    cursor.setPosition(editor().Position(start));
    cursor.setPosition(editor().Position(start + length), QTextCursor::KeepAnchor);
    editor().setTextCursor(cursor);
}

Int64 DesktopTextArea::LineNumber(Int64 position) const
{
    QTextCursor cursor(editor().document());
    cursor.setPosition(editor().Position(position));
    const QTextBlock block = cursor.block();
    // Asked for its place, the area lays the line out.
    static_cast<void>(editor().cursorRect(cursor));
    const QTextLine line = block.layout()->lineForTextPosition(cursor.positionInBlock());
    return block.firstLineNumber() + (line.isValid() ? line.lineNumber() : 0);
}

void DesktopTextArea::SetVerticalScrollPosition(Int64 line)
{
    editor().verticalScrollBar()->setValue(static_cast<int>(line));
}
