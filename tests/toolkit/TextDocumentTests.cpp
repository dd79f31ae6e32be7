#include "tests/toolkit/DocumentsTest.h"

namespace {

String Numbered(int lines)
{
    String text;
    for (int line = 0; line < lines; ++line)
        text += (line % 2 == 0 ? U"ab " : String(120, U'w')) + ToText(line) + U"\n";
    return text;
}

TEST_F(Documents, EachKeepsItsHistoryCaretAndPlace)
{
    document.SetText(Numbered(300));
    second.SetText(U"other\n");
    area.ScrollTo(IndexOf(document.Text(), U"ab 200"), 2);
    area.Select(IndexOf(document.Text(), U"ab 200"), 2);
    Press(Qt::Key_X);
    const String top = Top();
    area.SetDocument(second);
    EXPECT_EQ(area.GoToMark(true, 5), DesktopTextArea::Jump::None);
    Press(Qt::Key_Y);
    area.SetDocument(document);
    EXPECT_EQ(Top(), top);
    area.SetDocument(second);
    Press(Qt::Key_Z);
    Undo();
    EXPECT_EQ(second.Text(), U"yother\n") << "another document was shown between the strokes";
    Redo();
    Press(Qt::Key_Z);
    Undo();
    EXPECT_EQ(second.Text(), U"yzother\n") << "what was brought back is a step of its own";
    Undo();
    area.SetDocument(document);
    EXPECT_TRUE(editor->viewport()->rect().contains(editor->cursorRect()));
    for (int again = 0; again < 2; ++again) {
        Undo();
        EXPECT_EQ(document.Text(), Numbered(300)) << "the history begins with the text";
    }
    area.SetDocument(second);
    Undo();
    EXPECT_EQ(second.Text(), U"other\n");
}

TEST_F(Documents, AnInputMethodOverASelectionIsOneStep)
{
    document.SetText(U"one two");
    area.Select(4, 3);
    QInputMethodEvent composing(QStringLiteral("a"), {}), committed;
    committed.setCommitString(QStringLiteral("ab"));
    QApplication::sendEvent(editor, &composing);
    QApplication::sendEvent(editor, &committed);
    EXPECT_EQ(document.Text(), U"one ab");
    EXPECT_EQ(Colours(*editor->document()), "....rr");
    Undo();
    EXPECT_EQ(document.Text(), U"one two");
}

TEST_F(Documents, ModifiedIsWhatAHandHasMade)
{
    bool shown = true;
    document.ModifiedChanged = [&] { shown = document.Modified(); };
    const auto replaceBy = [&](StringView text, bool cleaned = false) {
        document.ReplaceText(text, {}, {cleaned});
        document.SetUnmodified();
    };
    const struct {
        const char* name;
        std::function<void()> act;
        StringView text;
        bool modified, cleaned;
    } steps[] = {
        {"typed", [&] { Press(Qt::Key_X); }, U"xone", true, false},
        {"another text", [&] { replaceBy(U"two", true); }, U"two", false, true},
        {"the typed text is back", [&] { Undo(); }, U"xone", true, false},
        {"the other text is back", [&] { Redo(); }, U"two", false, true},
        {"a third one", [&] { replaceBy(U"three"); }, U"three", false, false},
        {"as it was left before", [&] { Undo(); }, U"two", false, true},
        {"nothing is joined to what counts as unmodified", [&] { Press(Qt::Key_Y); }, U"ytwo", true, true},
        {"saved", [&] { document.SetSaved(); }, U"ytwo", false, true},
        {"typed and saved", [&] { Press(Qt::Key_Z), document.SetSaved(); }, U"yztwo", false, true},
        {"the file holds what was saved last", [&] { Undo(); }, U"ytwo", true, true},
        {"which is back", [&] { Redo(); }, U"yztwo", false, true},
    };
    document.SetText(U"one");
    EXPECT_FALSE(document.Modified());
    for (const auto& step : steps) {
        step.act();
        EXPECT_EQ(document.Text(), step.text) << step.name;
        EXPECT_EQ(document.Modified(), step.modified) << step.name;
        EXPECT_EQ(document.Origin().cleaned, step.cleaned) << step.name;
        EXPECT_EQ(shown, step.modified) << step.name;
    }
}

TEST_F(Documents, AnEditOfTheProgramStaysWhereItIsSeen)
{
    document.SetText(Numbered(300));
    area.ScrollTo(IndexOf(document.Text(), U"ab 100"), 3);
    const String top = Top();
    const Int64 start = IndexOf(document.Text(), U"ab 90");
    std::vector<TextChange> changes;
    for (Int64 at = start; at < IndexOf(document.Text(), U"ab 298"); at = IndexOf(document.Text(), U"ab ", at + 1))
        changes.push_back({at, 2, U"longer"});
    area.Select(start, 5000);
    area.Change(changes, start, 6000);
    for (const Int64 length : {5000, 6000}) {
        EXPECT_EQ(Top(), top);
        length == 5000 ? Undo() : Redo();
        EXPECT_EQ(Selection(), std::pair(start, length));
    }
    EXPECT_EQ(Top(), top);
    area.ScrollTo(0, 0);
    area.Change({}, start, 0);
    Undo();
    EXPECT_NE(Top(), U"ab 0") << "what is undone out of sight is shown; a change of nothing was no step";
    const Int64 mark[] = {IndexOf(Numbered(300), U"ab 200")};
    document.SetText(Numbered(300), mark);
    EXPECT_EQ(area.GoToMark(true, 0), DesktopTextArea::Jump::Ahead);
    EXPECT_EQ(Top(), U"ab 200");
}

TEST_F(Documents, AfterARunTheViewStaysAtWhatIsEdited)
{
    document.SetText(U"before");
    document.ReplaceText(Numbered(300));
    const Int64 place = IndexOf(document.Text(), U"ab 200");
    area.ScrollTo(place, 3);
    area.Select(place, 0);
    const String top = Top();
    Press(Qt::Key_X);
    Undo();
    EXPECT_EQ(document.Text(), Numbered(300));
    EXPECT_EQ(Top(), top);
}

TEST_F(Documents, LinesPutInHaveTheirOwnColours)
{
    const Int64 mark[] = {4};
    document.SetText(U"one\nmark", mark);
    const TextChange change{4, 0, U"ab x\ny ab\n"};
    area.Change({&change, 1}, 0, 0);
    EXPECT_EQ(Colours(*editor->document()), "...\nrr..\n..rr\noooo");
}

TEST_F(Documents, AReturnIsDrawnByWhatStandsBehindItNow)
{
    document.SetText(U"a\r\nb\r");
    area.Select(4, 0);
    for (const bool down : {false, true}) {
        EXPECT_TRUE(area.MoveLines(down, 0));
        EXPECT_EQ(editor->document()->toRawText(), down ? u"a\u206F\u2029b\u2028" : u"b\u206F\u2029a\u2028");
    }
    EXPECT_TRUE(area.DoubleLines());
    EXPECT_EQ(editor->document()->toRawText(), u"a\u206F\u2029b\u206F\u2029b\u2028");
}

TEST_F(Documents, ZoomKeepsThePlaceInEachDocument)
{
    document.SetText(Numbered(300));
    area.ScrollTo(IndexOf(document.Text(), U"ab 200"), 0);
    const double size = QFontInfo(editor->font()).pointSizeF();
    Press(Qt::Key_Plus, Qt::ControlModifier);
    const auto roll = [this](int delta) {
        QWheelEvent event({9, 9}, {9, 9}, {}, {0, delta}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(editor->viewport(), &event);
    };
    roll(80);
    EXPECT_LT(QFontInfo(editor->font()).pointSizeF(), size * 1.15) << "a touchpad tells parts of a step";
    roll(40);
    EXPECT_GT(QFontInfo(editor->font()).pointSizeF(), size * 1.15);
    EXPECT_EQ(editor->cursorForPosition({0, 0}).block().text(), "ab 200");
    area.SetDocument(second);
    EXPECT_EQ(editor->document()->defaultFont(), editor->font());
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_NEAR(QFontInfo(editor->font()).pointSizeF(), size, 0.01);
}

} // namespace
