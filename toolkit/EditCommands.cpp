#include "toolkit/EditCommands.h"

#include "toolkit/TextEditor.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>

namespace {

/// What the two kinds of text controls tell of themselves.
struct State {
    bool undo, redo, selection, text, writable;
};

State StateOf(const QWidget* control)
{
    if (const auto* field = qobject_cast<const QLineEdit*>(control))
        return {field->isUndoAvailable(), field->isRedoAvailable(), field->hasSelectedText(), !field->text().isEmpty(),
                !field->isReadOnly()};
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(control))
        return {area->document()->isUndoAvailable(), area->document()->isRedoAvailable(),
                area->textCursor().hasSelection(), !area->document()->isEmpty(), !area->isReadOnly()};
    return {};
}

void Clear(QLineEdit& field) { field.del(); }
void Clear(QPlainTextEdit& area) { area.textCursor().removeSelectedText(); }

void Travel(QLineEdit& field, bool forth) { forth ? field.redo() : field.undo(); }
void Travel(QPlainTextEdit& area, bool forth)
{
    if (auto* const editor = dynamic_cast<TextEditor*>(&area)) editor->Travel(forth);
}

/// By its key, so that a field of ours sees what comes before its text changes.
void Paste(QLineEdit& field)
{
    const QKeyCombination paste = QKeySequence(QKeySequence::Paste)[0];
    QKeyEvent press(QEvent::KeyPress, paste.key(), paste.keyboardModifiers());
    QCoreApplication::sendEvent(&field, &press);
}
void Paste(QPlainTextEdit& area) { area.paste(); }

void EditText(EditCommand command, auto& control)
{
    switch (command) {
    case EditCommand::Undo:
        return Travel(control, false);
    case EditCommand::Redo:
        return Travel(control, true);
    case EditCommand::Cut:
        return control.cut();
    case EditCommand::Copy:
        return control.copy();
    case EditCommand::Paste:
        return Paste(control);
    case EditCommand::Clear:
        return Clear(control);
    case EditCommand::SelectAll:
        return control.selectAll();
    case EditCommand::None:
        return;
    }
}

} // namespace

bool IsTextControl(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
           dynamic_cast<const EditTarget*>(widget);
}

bool ClipboardHasText()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText();
}

EditCommand CommandOf(const QKeyEvent& key)
{
    constexpr std::pair<QKeySequence::StandardKey, EditCommand> keys[] = {
        {QKeySequence::Undo, EditCommand::Undo},   {QKeySequence::Redo, EditCommand::Redo},
        {QKeySequence::Cut, EditCommand::Cut},     {QKeySequence::Copy, EditCommand::Copy},
        {QKeySequence::Paste, EditCommand::Paste}, {QKeySequence::SelectAll, EditCommand::SelectAll},
        {QKeySequence::Delete, EditCommand::Clear}};
    for (const auto& [standard, command] : keys)
        if (key.matches(standard)) return command;
    return EditCommand::None;
}

bool CanEdit(EditCommand command, const QWidget* control)
{
    if (!IsTextControl(control) || !control->isEnabled()) return false;
    if (const auto* target = dynamic_cast<const EditTarget*>(control); target && target->CanEdit(command)) return true;
    const State state = StateOf(control);
    switch (command) {
    case EditCommand::Undo:
        return state.undo && state.writable;
    case EditCommand::Redo:
        return state.redo && state.writable;
    case EditCommand::Cut:
    case EditCommand::Clear:
        return state.selection && state.writable;
    case EditCommand::Copy:
        return state.selection;
    case EditCommand::Paste:
        return state.writable && ClipboardHasText();
    case EditCommand::SelectAll:
        return state.text;
    case EditCommand::None:
        break;
    }
    return false;
}

void Edit(EditCommand command, QWidget* control)
{
    if (!CanEdit(command, control)) return;
    if (auto* target = dynamic_cast<EditTarget*>(control); target && target->CanEdit(command))
        return target->Edit(command);
    if (auto* field = qobject_cast<QLineEdit*>(control)) EditText(command, *field);
    if (auto* area = qobject_cast<QPlainTextEdit*>(control)) EditText(command, *area);
}
