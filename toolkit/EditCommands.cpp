#include "toolkit/EditCommands.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>

namespace {

/// What the two kinds of text controls tell of themselves.
struct State {
    bool undo, selection, text, writable;
};

State StateOf(const QWidget* control)
{
    if (const auto* field = qobject_cast<const QLineEdit*>(control))
        return {field->isUndoAvailable(), field->hasSelectedText(), !field->text().isEmpty(), !field->isReadOnly()};
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(control))
        return {area->document()->isUndoAvailable(), area->textCursor().hasSelection(), !area->document()->isEmpty(),
                !area->isReadOnly()};
    return {};
}

bool ClipboardHasText()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText();
}

void Clear(QLineEdit& field) { field.del(); }
void Clear(QPlainTextEdit& area) { area.textCursor().removeSelectedText(); }

void EditText(EditCommand command, auto& control)
{
    switch (command) {
    case EditCommand::Undo:
        return control.undo();
    case EditCommand::Cut:
        return control.cut();
    case EditCommand::Copy:
        return control.copy();
    case EditCommand::Paste:
        return control.paste();
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
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget);
}

bool CanEdit(EditCommand command, const QWidget* control)
{
    if (!IsTextControl(control) || !control->isEnabled()) return false;
    const State state = StateOf(control);
    switch (command) {
    case EditCommand::Undo:
        return state.undo && state.writable;
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
    if (auto* field = qobject_cast<QLineEdit*>(control)) EditText(command, *field);
    if (auto* area = qobject_cast<QPlainTextEdit*>(control)) EditText(command, *area);
}
