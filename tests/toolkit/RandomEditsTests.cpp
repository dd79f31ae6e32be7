#include "tests/toolkit/DocumentsTest.h"

#include <map>
#include <random>

namespace {

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

} // namespace
