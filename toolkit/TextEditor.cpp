#include "toolkit/TextEditor.h"

#include "toolkit/DocumentText.h"
#include "toolkit/core/QtText.h"
#include "toolkit/core/TextEncoding.h"

#include <QContextMenuEvent>
#include <QFontInfo>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QShortcut>
#include <QTextDocumentFragment>
#include <cmath>
#include <utility>

namespace {

/// The form in which a text area puts its characters on the clipboard for another one, every one as it is.
const QString exactFormat = QStringLiteral("application/x-tarnivel-text");

/// What was copied here keeps its marks as long as this process has the clipboard.
class MarkedText final : public QMimeData {
public:
    explicit MarkedText(const QTextCursor& selected)
        : fragment(selected)
    {
    }
    const QTextDocumentFragment fragment;
};

/// What a key puts into the text, or "" for a key that does something else. With Alt a letter comes here only where
/// that makes it another character (`StrayKeys`).
QString TextOf(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    const bool line = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (line) return held == Qt::NoModifier ? QStringLiteral("\n") : QString();
    const bool ofAKey = held == Qt::NoModifier || held == Qt::GroupSwitchModifier || held == Qt::AltModifier ||
                        held == (Qt::ControlModifier | Qt::AltModifier); // AltGr on some platforms
    const QString text = event.text();
    return ofAKey && !text.isEmpty() && text[0] >= u' ' && text[0] != QChar(0x7F) ? text : QString();
}

} // namespace

TextEditor::TextEditor()
{
    setTabChangesFocus(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    const auto zoom = [this](const QKeySequence& keys, int steps) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, steps] { Zoom(steps); });
    };
    zoom(QKeySequence::ZoomIn, 1);
    zoom(Qt::CTRL | Qt::Key_Equal, 1);
    zoom(QKeySequence::ZoomOut, -1);
    zoom(Qt::CTRL | Qt::Key_0, 0);
}

void TextEditor::Leave()
{
    if (!body_) return;
    KeepPlace();
    body_->keepPlace = body_->takePlace = body_->wrapChanged = nullptr;
}

void TextEditor::Show(TextDocument::Body& body)
{
    Leave();
    body_ = &body;
    struck_ = {};
    body_->wrapChanged = [this] { setWordWrapMode(body_->wrapMode); };
    body_->keepPlace = [this] { KeepPlace(); };
    body_->takePlace = [this] { TakePlace(); };
    if (body_->defaultFont() != font()) body_->setDefaultFont(font());
    setWordWrapMode(body_->wrapMode);
    setDocument(body_);
    TakePlace();
}

void TextEditor::KeepPlace()
{
    body_->caret = textCursor();
    body_->top = cursorForPosition({0, 0});
    body_->top.setKeepPositionOnInsert(true);
}

void TextEditor::TakePlace()
{
    const QTextCursor caret = body_->caret, top = body_->top;
    setTextCursor(caret);
    ShowAt(top.position(), 0);
}

void TextEditor::Select(Range selection)
{
    KeepPlace();
    body_->caret.setPosition(selection.first);
    body_->caret.setPosition(selection.second, QTextCursor::KeepAnchor);
    TakePlace();
}

bool TextEditor::Edit(const std::function<Range(QTextCursor& cursor)>& edit)
{
    KeepPlace();
    const Range before = Selected();
    const int steps = body_->availableUndoSteps();
    QTextCursor cursor = body_->caret;
    Range selection;
    {
        const TextDocument::Body::ProgramEdit program(*body_);
        cursor.beginEditBlock();
        selection = edit(cursor);
        cursor.endEditBlock();
    }
    const bool changed = body_->availableUndoSteps() != steps;
    if (changed) body_->Keep(steps, before);
    if (changed) body_->Keep(body_->availableUndoSteps(), selection);
    body_->caret.setPosition(selection.first);
    body_->caret.setPosition(selection.second, QTextCursor::KeepAnchor);
    TakePlace();
    return changed;
}

void TextEditor::Travel(bool forth)
{
    KeepPlace();
    struck_ = {};
    QTextCursor cursor = textCursor();
    const bool placed = body_->Travel(cursor, forth);
    body_->caret = cursor;
    TakePlace();
    const int first = cursorForPosition({0, 0}).position();
    const int last = cursorForPosition(viewport()->rect().bottomRight()).position();
    if (!placed && (body_->changedTo < first || body_->changedFrom > last)) ensureCursorVisible();
}

void TextEditor::ShowAt(int position, int linesAbove)
{
    QTextBlock block = body_->findBlock(position);
    // Asked for its place, the editor lays a line out; before that it counts as one line on screen.
    static_cast<void>(blockBoundingRect(block));
    const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
    int above = linesAbove - (line.isValid() ? line.lineNumber() : 0);
    for (; above > 0 && block.previous().isValid(); above -= block.lineCount()) {
        block = block.previous();
        static_cast<void>(blockBoundingRect(block));
    }
    verticalScrollBar()->setValue(block.firstLineNumber() - std::min(above, 0));
}

void TextEditor::Zoom(int steps)
{
    constexpr int most = 12, least = -5;
    if (size_ <= 0) size_ = QFontInfo(font()).pointSizeF();
    zoom_ = steps == 0 ? 0 : std::clamp(zoom_ + steps, least, most);
    KeepPlace();
    QFont sized = font();
    sized.setPointSizeF(size_ * std::pow(1.1, zoom_));
    setFont(sized);
    TakePlace();
}

void TextEditor::Strike(Stroke stroke, const QString& text)
{
    QTextCursor cursor = textCursor();
    const Struck here{stroke, body_->availableUndoSteps(), cursor.position()};
    const bool goesOn = !cursor.hasSelection() && text != u"\n" && body_->isModified() && struck_ == here;
    goesOn ? cursor.joinPreviousEditBlock() : cursor.beginEditBlock();
    if (stroke == Stroke::Type)
        cursor.insertText(text, QTextCharFormat());
    else
        stroke == Stroke::EraseBack ? cursor.deletePreviousChar() : cursor.deleteChar();
    cursor.endEditBlock();
    struck_ = {stroke, text == u"\n" ? -1 : body_->availableUndoSteps(), cursor.position()};
    setTextCursor(cursor);
}

void TextEditor::keyPressEvent(QKeyEvent* event)
{
    const bool forth = event->matches(QKeySequence::Redo) || event->keyCombination() == (Qt::CTRL | Qt::Key_Y);
    if (forth || event->matches(QKeySequence::Undo)) return isReadOnly() ? event->ignore() : Travel(forth);
    if (isReadOnly()) return QPlainTextEdit::keyPressEvent(event);
    const Qt::KeyboardModifiers held = event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    if (event->key() == Qt::Key_Backspace && held == Qt::NoModifier) return Strike(Stroke::EraseBack);
    if (event->matches(QKeySequence::Delete)) return Strike(Stroke::Erase);
    if (const QString text = TextOf(*event); !text.isEmpty()) return Strike(Stroke::Type, text);
    QPlainTextEdit::keyPressEvent(event);
}

void TextEditor::inputMethodEvent(QInputMethodEvent* event)
{
    const bool composes =
        !isReadOnly() && event->replacementLength() == 0 && !(event->preeditString() + event->commitString()).isEmpty();
    // What is composed takes the place of a selection in one step with its commit, which goes on with this stroke.
    if (composes && textCursor().hasSelection()) Strike(Stroke::Type);
    if (!composes || event->commitString().isEmpty()) return QPlainTextEdit::inputMethodEvent(event);
    QInputMethodEvent composed(event->preeditString(), event->attributes());
    QPlainTextEdit::inputMethodEvent(&composed);
    Strike(Stroke::Type, event->commitString());
}

void TextEditor::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() != Qt::ControlModifier) return QPlainTextEdit::wheelEvent(event);
    // A touchpad tells many small parts of a step.
    wheel_ += event->angleDelta().y();
    const int steps = wheel_ / QWheelEvent::DefaultDeltasPerStep;
    wheel_ -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0) Zoom(steps);
}

void TextEditor::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
    for (const bool forth : {false, true})
        if (auto* step = menu->findChild<QAction*>(forth ? QStringLiteral("edit-redo") : QStringLiteral("edit-undo"))) {
            step->disconnect(this);
            connect(step, &QAction::triggered, this, [this, forth] { Travel(forth); });
        }
    menu->exec(event->globalPos());
}

void TextEditor::dropEvent(QDropEvent* event)
{
    body_->keepsFormats = true;
    QPlainTextEdit::dropEvent(event);
    body_->keepsFormats = false;
}

QMimeData* TextEditor::createMimeDataFromSelection() const
{
    // A fragment takes ten times as long as the text.
    auto* selected = body_->Counts().marked > 0 ? new MarkedText(textCursor()) : new QMimeData;
    const QString text = ToQt(FromDocument(textCursor().selectedText()));
    selected->setText(text);
    selected->setData(exactFormat, text.toUtf8());
    return selected;
}

bool TextEditor::canInsertFromMimeData(const QMimeData* source) const
{
    return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
}

void TextEditor::insertFromMimeData(const QMimeData* source)
{
    if (isReadOnly() || !source->hasText()) return;
    // What comes from elsewhere may have the line ends of another system.
    const String text = source->hasFormat(exactFormat) ? Encodings::UTF8.Decode(source->data(exactFormat).toStdString())
                                                       : ReplaceLineEndings(FromQt(source->text()), EndOfLine::UNIX);
    if (WrapModeFor(text) == QTextOption::WrapAnywhere) body_->Wrap(QTextOption::WrapAnywhere);
    const bool kept = std::exchange(body_->keepsFormats, true);
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    if (const auto* marked = dynamic_cast<const MarkedText*>(source))
        cursor.insertFragment(marked->fragment);
    else
        cursor.insertText(ToDocument(text), QTextCharFormat());
    cursor.endEditBlock();
    body_->keepsFormats = kept;
    setTextCursor(cursor);
}
