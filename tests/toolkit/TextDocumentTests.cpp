#include "tests/toolkit/WidgetTest.h"
#include "toolkit/DesktopTextArea.h"
#include "toolkit/core/QtText.h"

#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextFragment>
#include <map>
#include <random>

namespace {

constexpr ColorGroup red{0xFF0000}, orange{0xFF7F00};

/// "ab" is red, wherever it stands.
std::vector<ColorSpan> ColourAb(StringView line)
{
    std::vector<ColorSpan> spans;
    for (std::size_t at = line.find(U"ab"); at != StringView::npos; at = line.find(U"ab", at + 2))
        spans.push_back({static_cast<Int64>(at), 2, red});
    return spans;
}

/// One letter for each unit of a document, the blocks on lines: "." for black, "r" for red, "o" for orange.
std::string Colours(const QTextDocument& document)
{
    std::string letters;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QRgb color = at.fragment().charFormat().foreground().color().rgb() & 0xFFFFFF;
            letters.append(static_cast<std::size_t>(at.fragment().length()), color == red.rgb      ? 'r'
                                                                             : color == orange.rgb ? 'o'
                                                                                                   : '.');
        }
        if (block.next().isValid()) letters += '\n';
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
    /// The first line on screen.
    [[nodiscard]] String Top() const { return FromQt(editor->cursorForPosition({0, 0}).block().text()); }
};

String Numbered(int lines)
{
    String text;
    for (int line = 0; line < lines; ++line)
        text += (line % 2 == 0 ? U"ab " : String(120, U'w')) + ToText(line) + U"\n";
    return text;
}

/// A naive document: each character with its mark.
struct Model {
    using Cell = std::pair<char32_t, bool>;
    std::vector<Cell> cells;
    bool operator==(const Model&) const = default;

    static Model Of(StringView text, const std::vector<Int64>& marks = {})
    {
        Model model;
        Int64 line = 0;
        for (const char32_t c : text) {
            model.cells.emplace_back(c, c != U'\n' && std::ranges::find(marks, line) != marks.end());
            if (c == U'\n') line = std::ssize(model.cells);
        }
        return model;
    }
    [[nodiscard]] String Text() const
    {
        String text;
        for (const Cell& cell : cells)
            text += cell.first;
        return text;
    }
    void Replace(Int64 start, Int64 length, const std::vector<Cell>& by)
    {
        cells.erase(cells.begin() + start, cells.begin() + start + length);
        cells.insert(cells.begin() + start, by.begin(), by.end());
    }
    [[nodiscard]] std::vector<Cell> Range(Int64 start, Int64 length) const
    {
        return {cells.begin() + start, cells.begin() + start + length};
    }
    [[nodiscard]] std::string Colours() const
    {
        const String text = Text();
        std::string letters;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const bool ab = text.compare(i, 2, U"ab") == 0 || (i > 0 && text.compare(i - 1, 2, U"ab") == 0);
            const char letter = cells[i].first == U'\n' ? '\n' : ab ? 'r' : cells[i].second ? 'o' : '.';
            letters.append(cells[i].first > 0xFFFF ? 2 : 1, letter);
        }
        return letters;
    }
    [[nodiscard]] std::vector<Int64> Marks() const
    {
        std::vector<Int64> marks;
        const std::string colours = Model(*this).Colours();
        Int64 line = 0;
        std::size_t unit = 0;
        for (std::size_t i = 0; i<cells.size(); unit += cells[i++].first> 0xFFFF ? 2 : 1) {
            if (colours[unit] == 'o' && (marks.empty() || marks.back() != line)) marks.push_back(line);
            if (cells[i].first == U'\n') line = static_cast<Int64>(i) + 1;
        }
        return marks;
    }
    /// The first characters of the lines from `start` to `end`, and where the line behind them begins.
    [[nodiscard]] std::pair<Int64, Int64> Lines(Int64 start, Int64 end) const
    {
        const String text = Text();
        while (start > 0 && text[static_cast<std::size_t>(start - 1)] != U'\n')
            --start;
        if (end > start && text[static_cast<std::size_t>(end - 1)] == U'\n') --end;
        const std::size_t last = text.find(U'\n', static_cast<std::size_t>(end));
        return {start, last == String::npos ? std::ssize(text) : static_cast<Int64>(last) + 1};
    }
};

struct RandomEdits : Documents {
    std::mt19937 random{20261123};
    Model model;
    /// What the document was at each number of undo steps.
    std::map<int, Model> history;
    Int64 start = 0, length = 0;

    Int64 UpTo(Int64 n) { return static_cast<Int64>(random() % static_cast<unsigned>(n + 1)); }

    String AnyText()
    {
        String text;
        for (Int64 i = UpTo(24); i > 0; --i)
            text += U"abab.😀\n\n"[UpTo(7)];
        return text;
    }
    void ReplaceAll()
    {
        const String text = AnyText();
        std::vector<Int64> marks;
        for (Int64 at = 0; at < std::ssize(text); ++at)
            if ((at == 0 || text[static_cast<std::size_t>(at - 1)] == U'\n') && UpTo(1) == 0) marks.push_back(at);
        document.ReplaceText(text, marks);
        model = Model::Of(text, marks);
        EXPECT_EQ(area.SelectionStart() + area.SelectionLength(), 0);
    }
    void Type(Qt::Key key, char32_t character)
    {
        Press(key);
        model.Replace(start, length, {{character, false}});
    }
    void Erase(bool back)
    {
        Press(back ? Qt::Key_Backspace : Qt::Key_Delete);
        if (length == 0 && back && start > 0)
            model.Replace(start - 1, 1, {});
        else if (length > 0 || (!back && start < std::ssize(model.cells)))
            model.Replace(start, std::max(length, Int64{1}), {});
    }
    void ChangeOne()
    {
        if (start == std::ssize(model.cells) || model.cells[static_cast<std::size_t>(start)].first == U'\n') return;
        const String by = UpTo(1) == 0 ? U"ab" : U"a😀.";
        const TextChange changes[] = {{start, 1, by}};
        area.Change(changes, start, std::ssize(by));
        std::vector<Model::Cell> cells;
        for (const char32_t c : by)
            cells.emplace_back(c, model.cells[static_cast<std::size_t>(start)].second);
        model.Replace(start, 1, cells);
        EXPECT_EQ(area.SelectedText(), by);
    }
    void CutAndPaste()
    {
        Press(Qt::Key_X, Qt::ControlModifier);
        const std::vector<Model::Cell> cut = model.Range(start, length);
        model.Replace(start, length, {});
        if (length == 0) return;
        Check("cut");
        const Int64 to = UpTo(std::ssize(model.cells));
        area.Select(to, 0);
        Press(Qt::Key_V, Qt::ControlModifier);
        model.Replace(to, 0, cut);
    }
    void EditLines()
    {
        const auto [first, behind] = model.Lines(start, start + length);
        std::vector<Model::Cell> lines = model.Range(first, behind - first);
        if (UpTo(1) == 0) {
            EXPECT_EQ(area.DeleteLines(), !lines.empty());
            return model.Replace(first, behind - first, {});
        }
        const bool doubles = area.DoubleLines();
        EXPECT_EQ(doubles, !lines.empty());
        if (!doubles) return;
        EXPECT_EQ(std::pair(area.SelectionStart(), area.SelectionLength()), std::pair(start, length));
        if (lines.back().first != U'\n') lines.insert(lines.begin(), {U'\n', false});
        model.Replace(behind, 0, lines);
    }
    void MoveLines(bool down)
    {
        auto [first, behind] = model.Lines(start, start + length);
        const auto count = std::ssize(model.cells);
        const String selected = area.SelectedText();
        const bool can = first < behind && (down ? behind < count : first > 0);
        EXPECT_EQ(area.MoveLines(down, 0), can) << "from " << first << " to " << behind << " of " << count;
        EXPECT_EQ(area.SelectedText(), selected);
        if (!can) return;
        // Two neighbours change places: `left` goes behind `right`; the text keeps its end.
        const auto [otherFirst, otherBehind] = down ? model.Lines(behind, behind) : model.Lines(first - 1, first - 1);
        std::vector<Model::Cell> left =
            model.Range(std::min(first, otherFirst), down ? behind - first : first - otherFirst);
        std::vector<Model::Cell> right =
            model.Range(std::max(first, otherFirst), down ? otherBehind - behind : behind - first);
        if (right.back().first != U'\n') {
            right.push_back(left.back());
            left.pop_back();
        }
        const Int64 moved = down ? std::ssize(right) : otherFirst - first;
        right.insert(right.end(), left.begin(), left.end());
        model.Replace(std::min(first, otherFirst), std::ssize(right), right);
        EXPECT_EQ(area.SelectionStart(), std::min(start + moved, count));
    }
    void Travel(bool forth)
    {
        forth ? Redo() : Undo();
        const int state = editor->document()->availableUndoSteps();
        ASSERT_TRUE(history.contains(state)) << state;
        model = history[state];
    }
    void Check(const char* what)
    {
        ASSERT_EQ(document.Text(), model.Text()) << what;
        ASSERT_EQ(Colours(*editor->document()), model.Colours()) << what;
        ASSERT_EQ(document.Marks(), model.Marks()) << what;
        history[editor->document()->availableUndoSteps()] = model;
    }
    const char* Step()
    {
        switch (UpTo(11)) {
        case 0:
            return ReplaceAll(), "replace";
        case 1:
            return Type(Qt::Key_Return, U'\n'), "Return";
        case 2:
        case 3:
            return Type(Qt::Key_A, U'a'), "a";
        case 4:
            return Type(Qt::Key_B, U'b'), "b";
        case 5:
            return Erase(UpTo(1) == 0), "erase";
        case 6:
            return ChangeOne(), "change";
        case 7:
            return CutAndPaste(), "cut and paste";
        case 8:
            return EditLines(), "lines";
        case 9:
            return MoveLines(UpTo(1) == 0), "move";
        case 10:
            return Travel(false), "undo";
        default:
            return Travel(true), "redo";
        }
    }
};

TEST_F(RandomEdits, KeepMarksColoursAndHistory)
{
    for (int round = 0; round < 3000 && !HasFailure(); ++round) {
        if (round % 100 == 0) {
            history.clear();
            document.SetText(U"");
            model = {};
            Check("empty");
        }
        // Often where the last step left the caret, so that typing goes on.
        if (UpTo(2) == 0) {
            const Int64 at = UpTo(std::ssize(model.cells));
            area.Select(at, UpTo(1) * UpTo(std::ssize(model.cells) - at));
        }
        start = area.SelectionStart();
        length = area.SelectionLength();
        SCOPED_TRACE(testing::Message() << "round " << round << " at " << start << ", " << length << " of \""
                                        << QString::fromUcs4(model.Text().data(), std::ssize(model.cells)).toStdString()
                                        << '"');
        Check(Step());
    }
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
    Press(Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(document.Text(), U"mark\nxabx") << "Alt with a letter never types";
}

TEST_F(Documents, ModifiedIsWhatAHandHasMade)
{
    bool shown = true;
    document.ModifiedChanged = [&] { shown = document.Modified(); };
    document.SetText(U"one");
    EXPECT_FALSE(document.Modified());
    Press(Qt::Key_X);
    EXPECT_TRUE(document.Modified());
    document.ReplaceText(U"two");
    document.SetUnmodified();
    Undo();
    EXPECT_TRUE(document.Modified()) << "the typed text is back";
    Redo();
    EXPECT_FALSE(document.Modified());
    document.ReplaceText(U"three");
    document.SetUnmodified();
    Undo();
    EXPECT_EQ(document.Text(), U"two");
    EXPECT_FALSE(shown || document.Modified()) << "as it was left before";
    Press(Qt::Key_Y);
    EXPECT_TRUE(shown && document.Modified()) << "nothing was joined to the state that counts as unmodified";
    EXPECT_EQ(document.Text(), U"ytwo");
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
        EXPECT_EQ(std::pair(area.SelectionStart(), area.SelectionLength()), std::pair(start, length));
    }
    EXPECT_EQ(Top(), top);
    area.ScrollTo(0, 0);
    area.Change({}, start, 0);
    Undo();
    EXPECT_NE(Top(), U"ab 0") << "what is undone out of sight is shown; a change of nothing was no step";
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
        if (place != marks[0]) {
            EXPECT_EQ(editor->cursorRect().top() / editor->cursorRect().height(), 5) << place;
        }
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
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(QFontInfo(editor->font()).pointSizeF(), size * 1.1);
    EXPECT_EQ(editor->cursorForPosition({0, 0}).block().text(), "ab 200");
    area.SetDocument(second);
    EXPECT_EQ(second.Text(), U"");
    EXPECT_EQ(editor->document()->defaultFont(), editor->font());
    Press(Qt::Key_Minus, Qt::ControlModifier);
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_NEAR(QFontInfo(editor->font()).pointSizeF(), size, 0.01);
}

} // namespace
