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
    const Int64 marks[] = {0};
    document.SetText(Numbered(300), marks);
    second.SetText(U"other\n");
    area.ScrollTo(IndexOf(document.Text(), U"ab 200"), 2);
    area.Select(IndexOf(document.Text(), U"ab 200"), 2);
    Press(Qt::Key_X);
    const String top = Top();
    area.SetDocument(second);
    EXPECT_EQ(Top(), U"other");
    Press(Qt::Key_Y);
    EXPECT_EQ(second.Text(), U"yother\n");
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
    Undo();
    EXPECT_EQ(document.Text(), Numbered(300));
    EXPECT_EQ(second.Text(), U"yother\n");
    Undo();
    EXPECT_EQ(document.Text(), Numbered(300)) << "the history begins with the text";
    area.SetDocument(second);
    Undo();
    EXPECT_EQ(second.Text(), U"other\n");
}

TEST_F(Documents, TypingIsOneStepOfALineWithItsColours)
{
    const Int64 marks[] = {0};
    document.SetText(U"mark", marks);
    Press(Qt::Key_End);
    Press(Qt::Key_Return);
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_A, Qt::Key_B, Qt::Key_X})
        Press(key);
    EXPECT_EQ(Colours(*editor->document()), "oooo\n.rr.");
    Undo();
    EXPECT_EQ(document.Text(), U"mark\n");
    Redo();
    EXPECT_EQ(Colours(*editor->document()), "oooo\n.rr.");
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
    const auto replaceBy = [&](StringView text) { document.ReplaceText(text), document.SetUnmodified(); };
    const struct {
        const char* name;
        std::function<void()> act;
        StringView text;
        bool modified;
    } steps[] = {
        {"typed", [&] { Press(Qt::Key_X); }, U"xone", true},
        {"another text", [&] { replaceBy(U"two"); }, U"two", false},
        {"the typed text is back", [&] { Undo(); }, U"xone", true},
        {"the other text is back", [&] { Redo(); }, U"two", false},
        {"a third one", [&] { replaceBy(U"three"); }, U"three", false},
        {"as it was left before", [&] { Undo(); }, U"two", false},
        {"nothing is joined to what counts as unmodified", [&] { Press(Qt::Key_Y); }, U"ytwo", true},
        {"saved", [&] { document.SetSaved(); }, U"ytwo", false},
        {"typed and saved", [&] { Press(Qt::Key_Z), document.SetSaved(); }, U"yztwo", false},
        {"the file holds what was saved last", [&] { Undo(); }, U"ytwo", true},
        {"which is back", [&] { Redo(); }, U"yztwo", false},
    };
    document.SetText(U"one");
    EXPECT_FALSE(document.Modified());
    for (const auto& step : steps) {
        step.act();
        EXPECT_EQ(document.Text(), step.text) << step.name;
        EXPECT_EQ(document.Modified(), step.modified) << step.name;
        EXPECT_EQ(shown, step.modified) << step.name;
    }
}

TEST_F(Documents, ACleanedTextIsKnownAsOneWhereverTheHistoryLeads)
{
    document.SetText(U"one");
    document.ReplaceText(U"two", {}, true);
    Press(Qt::Key_X);
    document.ReplaceText(U"three");
    for (const bool cleaned : {false, true, true, false}) {
        EXPECT_EQ(document.Cleaned(), cleaned) << document.Text().size();
        Undo();
    }
    Redo();
    EXPECT_TRUE(document.Cleaned());
    Undo();
    Press(Qt::Key_Y);
    EXPECT_FALSE(document.Cleaned());
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
}

TEST_F(Documents, AfterARunTheViewStaysAtWhatIsEdited)
{
    for (const bool typed : {false, true}) {
        document.SetText(U"before");
        document.ReplaceText(Numbered(300));
        const Int64 place = IndexOf(document.Text(), U"ab 200");
        area.ScrollTo(place, 3);
        area.Select(place, 0);
        const String top = Top();
        const TextChange change{place, 2, U"longer"};
        typed ? Press(Qt::Key_X) : area.Change({&change, 1}, place, 0);
        Undo();
        EXPECT_EQ(document.Text(), Numbered(300));
        EXPECT_EQ(Top(), top) << typed;
    }
}

TEST_F(Documents, LinesPutInHaveTheirOwnColours)
{
    const Int64 mark[] = {4};
    document.SetText(U"one\nmark", mark);
    const TextChange change{4, 0, U"ab x\ny ab\n"};
    area.Change({&change, 1}, 0, 0);
    EXPECT_EQ(Colours(*editor->document()), "...\nrr..\n..rr\noooo");
}

TEST_F(Documents, MarksAreGoneToAndFixedLinesStay)
{
    const String text = Numbered(300);
    const Int64 marks[] = {IndexOf(text, U"ab 4"), IndexOf(text, U"ab 202"), IndexOf(text, U"ab 250")};
    document.SetText(text, marks);
    using Jump = DesktopTextArea::Jump;
    const std::tuple<bool, Int64, Jump> jumps[] = {{true, marks[0], Jump::Ahead},  {false, marks[2], Jump::Around},
                                                   {false, marks[1], Jump::Ahead}, {true, marks[2], Jump::Ahead},
                                                   {true, marks[0], Jump::Around}, {true, marks[1], Jump::Ahead}};
    for (const auto& [forward, place, jump] : jumps) {
        EXPECT_EQ(area.GoToMark(forward, 5), jump);
        EXPECT_EQ(area.SelectionStart(), place);
        // Lines of 120 letters are wrapped.
        EXPECT_TRUE(place == marks[0] || editor->cursorRect().top() / editor->cursorRect().height() == 5) << place;
    }
    second.SetText(U"none\nnone");
    area.SetDocument(second);
    EXPECT_EQ(area.GoToMark(true, 5), Jump::None);

    second.SetText(U"I\nJ\nK\nl\nm");
    area.SetDocument(second);
    for (const auto& [at, down, moves] :
         {std::tuple(6, false, false), std::tuple(4, true, false), std::tuple(8, false, true)}) {
        area.Select(at, 0);
        EXPECT_EQ(area.MoveLines(down, 3), moves) << at;
    }
    EXPECT_EQ(second.Text(), U"I\nJ\nK\nm\nl");
}

TEST_F(Documents, ZoomKeepsThePlaceInEachDocument)
{
    document.SetText(Numbered(300));
    area.ScrollTo(IndexOf(document.Text(), U"ab 200"), 0);
    const double size = QFontInfo(editor->font()).pointSizeF();
    EXPECT_NEAR(size, QFontInfo(QApplication::font()).pointSizeF(), 0.5);
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
    EXPECT_EQ(second.Text(), U"");
    EXPECT_EQ(editor->document()->defaultFont(), editor->font());
    Press(Qt::Key_Minus, Qt::ControlModifier);
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_NEAR(QFontInfo(editor->font()).pointSizeF(), size, 0.01);
}

} // namespace
