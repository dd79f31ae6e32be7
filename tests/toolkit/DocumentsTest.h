/// A text area that shows one of two documents, whose "ab" is red.
#pragma once

#include "tests/toolkit/WidgetTest.h"
#include "toolkit/DesktopTextArea.h"
#include "toolkit/core/QtText.h"

#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextFragment>

inline constexpr ColorGroup red{0xFF0000}, orange{0xFF7F00};

inline std::vector<ColorSpan> ColourAb(StringView line)
{
    std::vector<ColorSpan> spans;
    for (std::size_t at = line.find(U"ab"); at != StringView::npos; at = line.find(U"ab", at + 2))
        spans.push_back({static_cast<Int64>(at), 2, red});
    return spans;
}

/// One letter for each character of a document: "." for black, "r" for red, "o" for orange, line ends as they are.
inline std::string Colours(const QTextDocument& document)
{
    std::string letters;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockNumber() > 0) letters += '\n';
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QRgb color = at.fragment().charFormat().foreground().color().rgb() & 0xFFFFFF;
            const char letter = color == red.rgb ? 'r' : color == orange.rgb ? 'o' : '.';
            letters.append(FromQt(at.fragment().text()).size(), letter);
        }
    }
    return letters;
}

struct Documents : ::testing::Test {
    TextDocument document{{ColourAb, orange}}, second{{ColourAb, orange}};
    DesktopWindow window{{.title = U"Text", .width = 300, .height = 200}};
    DesktopTextArea area{window, {0, 0, 300, 200}};
    QPlainTextEdit* editor = nullptr;

    void SetUp() override
    {
        area.SetName(U"area");
        area.SetDocument(document);
        ShowActive(window);
        area.SetFocus();
        editor = &Find<QPlainTextEdit>("area");
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(editor, key, modifiers);
    }
    void Undo() const { Press(Qt::Key_Z, Qt::ControlModifier); }
    void Redo() const { Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    [[nodiscard]] std::pair<Int64, Int64> Selection() const { return {area.SelectionStart(), area.SelectionLength()}; }
    /// The first line on screen.
    [[nodiscard]] String Top() const { return FromQt(editor->cursorForPosition({0, 0}).block().text()); }
};
