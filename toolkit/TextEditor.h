/// The widget of a text area. For the sources of this folder only.
#pragma once

#include "toolkit/TextBody.h"

#include <QPlainTextEdit>

/// Shows one document at a time and edits it; each keeps its caret and its place.
class TextEditor final : public QPlainTextEdit {
public:
    using Range = TextDocument::Body::Range;

    TextEditor();

    void Show(TextDocument::Body& body);
    /// The document keeps the caret and the place, and may go.
    void Leave();
    [[nodiscard]] TextDocument::Body& Body() const { return *body_; }

    [[nodiscard]] Range Selected() const { return {textCursor().anchor(), textCursor().position()}; }
    /// Selects without scrolling.
    void Select(Range selection);
    /// An edit of the program: one step to undo, or none where nothing changes. The view stands where it stood. `edit`
    /// answers the selection afterwards; true if it changed the text.
    bool Edit(const std::function<Range(QTextCursor& cursor)>& edit);
    /// Takes a step back, or forth again. The view scrolls only when what changes is out of sight.
    void Travel(bool forth);
    /// Scrolls until a character's line on screen stands so many lines below the top, or as far as the text goes.
    void ShowAt(int position, int linesAbove);

    /// Steps of a tenth from the size that the area began with; 0 goes back to it.
    void Zoom(int steps);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    /// A file that misses the field it is meant for leaves no address in the middle of a line.
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    enum class Stroke { None, Type, EraseBack, Erase };
    /// What a key does to the text: one step to undo, which the next stroke of its kind goes on with on its line.
    void Strike(Stroke stroke, const QString& text = {});
    /// What the document holds of the caret and of what is scrolled.
    void KeepPlace();
    void TakePlace();

    TextDocument::Body* body_ = nullptr;
    /// Where the history and the caret stood after the last stroke.
    struct Struck {
        Stroke stroke = Stroke::None;
        int state = -1, caret = -1;
        bool operator==(const Struck&) const = default;
    };
    Struck struck_;
    int zoom_ = 0, wheel_ = 0;
    double size_ = 0;
};
