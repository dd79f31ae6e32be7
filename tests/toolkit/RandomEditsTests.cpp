#include "tests/toolkit/DocumentsTest.h"
#include "toolkit/core/TextEncoding.h"

#include <map>
#include <random>

namespace {

constexpr auto none = String::npos;

/// A naive document: its characters, and for each of them "o" if it is marked, "." if not; line ends stand in both.
struct Model {
    String text;
    std::string marks;

    void Add(StringView more, char mark)
    {
        text += more;
        for (const char32_t c : more)
            marks += c == U'\n' ? '\n' : mark;
    }
    [[nodiscard]] Model Part(std::size_t start, std::size_t length) const
    {
        return {text.substr(start, length), marks.substr(start, length)};
    }
    void Replace(std::size_t start, std::size_t length, const Model& by)
    {
        text.replace(start, length, by.text);
        marks.replace(start, length, by.marks);
    }
    [[nodiscard]] std::string Colours() const
    {
        std::string letters = marks;
        for (std::size_t at = text.find(U"ab"); at != none; at = text.find(U"ab", at + 2))
            letters.replace(at, 2, "rr");
        return letters;
    }
    /// Without their ends; behind the last end there is one more.
    [[nodiscard]] std::vector<Model> Lines() const
    {
        std::vector<Model> lines;
        for (std::size_t start = 0, end = 0; end != none; start = end + 1) {
            end = text.find(U'\n', start);
            lines.push_back(Part(start, end - start));
        }
        return lines;
    }
};

struct RandomEdits : Documents {
    std::mt19937 random{20261123};
    Model model;
    /// What the document was at each number of undo steps.
    std::map<int, Model> history;
    std::size_t start = 0, length = 0;

    std::size_t UpTo(std::size_t n) { return random() % (n + 1); }
    bool Maybe() { return UpTo(1) == 0; }
    void Select(std::size_t from, std::size_t count)
    {
        area.Select(static_cast<Int64>(from), static_cast<Int64>(count));
    }

    void ReplaceAll()
    {
        std::vector<Int64> marks;
        model = {};
        for (std::size_t line = UpTo(4); line > 0; --line) {
            const bool marked = Maybe();
            if (marked) marks.push_back(std::ssize(model.text));
            for (std::size_t i = UpTo(6); i > 0; --i)
                model.Add(StringView(U"abab.😀").substr(UpTo(5), 1), marked ? 'o' : '.');
            if (line > 1 || Maybe()) model.Add(U"\n", '.');
        }
        document.ReplaceText(model.text, marks);
        EXPECT_EQ(Selection(), std::pair(Int64{0}, Int64{0}));
    }
    void Type()
    {
        const std::size_t which = UpTo(2);
        Press(std::array{Qt::Key_Return, Qt::Key_A, Qt::Key_B}[which]);
        Model typed;
        typed.Add(StringView(U"\nab").substr(which, 1), '.');
        model.Replace(start, length, typed);
    }
    void Erase()
    {
        const bool back = Maybe();
        Press(back ? Qt::Key_Backspace : Qt::Key_Delete);
        if (length > 0)
            model.Replace(start, length, {});
        else if (back ? start > 0 : start < model.text.size())
            model.Replace(back ? start - 1 : start, 1, {});
    }
    void ChangeOne()
    {
        if (start == model.text.size() || model.text[start] == U'\n') return;
        const String by = Maybe() ? U"ab" : U"a😀.";
        const TextChange change{static_cast<Int64>(start), 1, by};
        area.Change({&change, 1}, change.start, std::ssize(by));
        Model changed;
        changed.Add(by, model.marks[start]);
        model.Replace(start, 1, changed);
        EXPECT_EQ(area.SelectedText(), by);
    }
    void CutAndPaste()
    {
        Press(Qt::Key_X, Qt::ControlModifier);
        const Model cut = model.Part(start, length);
        model.Replace(start, length, {});
        if (length == 0) return;
        Check();
        const std::size_t to = UpTo(model.text.size());
        Select(to, 0);
        Press(Qt::Key_V, Qt::ControlModifier);
        model.Replace(to, 0, cut);
    }
    void EditLines()
    {
        std::vector<Model> lines = model.Lines();
        const auto numberOf = [this](std::size_t place) {
            return std::ranges::count(model.text.substr(0, place), U'\n');
        };
        const bool endsLine = length > 0 && model.text[start + length - 1] == U'\n';
        const auto first = numberOf(start), end = numberOf(start + length) + (endsLine ? 0 : 1),
                   count = std::ssize(lines) - (lines.back().text.empty() ? 1 : 0);
        const auto from = lines.begin() + first, behind = lines.begin() + end;
        const bool down = Maybe(), isLine = first < count;
        const auto fixed = static_cast<std::ptrdiff_t>(UpTo(2));
        const bool moves = isLine && first >= fixed && (down ? end < count : first > fixed);
        std::pair<Int64, Int64> selection = Selection();
        const std::size_t act = UpTo(2);
        if (act == 0) {
            ASSERT_EQ(area.MoveLines(down, fixed), moves) << "from " << first << " to " << end << " of " << count;
            if (moves) selection.first += down ? std::ssize(behind->text) + 1 : -std::ssize(from[-1].text) - 1;
            if (moves) down ? std::rotate(from, behind, behind + 1) : std::rotate(from - 1, from, behind);
        } else if (act == 1) {
            ASSERT_EQ(area.DoubleLines(), isLine);
            const std::vector<Model> copies(from, isLine ? behind : from);
            lines.insert(behind, copies.begin(), copies.end());
        } else {
            ASSERT_EQ(area.DeleteLines(), isLine);
            selection = Selection();
            if (isLine && behind == lines.end()) lines.emplace_back();
            if (isLine) lines.erase(lines.begin() + first, lines.begin() + end);
        }
        model = {};
        for (const Model& line : lines) {
            if (&line != &lines.front()) model.Add(U"\n", '.');
            model.Replace(model.text.size(), 0, line);
        }
        const Int64 place = std::min(selection.first, std::ssize(model.text));
        EXPECT_EQ(Selection(), std::pair(place, std::min(selection.second, std::ssize(model.text) - place)));
    }
    void Travel()
    {
        Maybe() ? Redo() : Undo();
        const int state = editor->document()->availableUndoSteps();
        ASSERT_TRUE(history.contains(state)) << state;
        model = history[state];
    }
    void Check()
    {
        ASSERT_EQ(document.Text(), model.text);
        ASSERT_EQ(Colours(*editor->document()), model.Colours());
        const std::vector<Model> lines = Model{model.text, model.Colours()}.Lines();
        const auto isMarked = [](const Model& line) { return line.marks.find('o') != none; };
        const auto beginsRed = [](const Model& line) { return line.marks.starts_with('r'); };
        ASSERT_EQ(document.MarkedLines(), std::ranges::count_if(lines, isMarked));
        ASSERT_EQ(document.LinesIn(red), std::ranges::count_if(lines, beginsRed));
        ASSERT_EQ(document.LineCount(), std::ssize(lines) - (lines.back().text.empty() ? 1 : 0));
        history[editor->document()->availableUndoSteps()] = model;
    }
};

TEST_F(RandomEdits, KeepMarksColoursAndHistory)
{
    using Step = void (RandomEdits::*)();
    const Step steps[] = {&RandomEdits::ReplaceAll,  &RandomEdits::Type,      &RandomEdits::Type,
                          &RandomEdits::Type,        &RandomEdits::Erase,     &RandomEdits::ChangeOne,
                          &RandomEdits::CutAndPaste, &RandomEdits::EditLines, &RandomEdits::Travel,
                          &RandomEdits::Travel};
    for (int round = 0; round < 3000 && !HasFailure(); ++round) {
        if (round % 100 == 0) {
            history.clear();
            document.SetText(U"");
            model = {};
            Check();
        }
        // Often where the last step left the caret, so that typing goes on.
        if (UpTo(2) == 0) {
            const std::size_t at = UpTo(model.text.size());
            Select(at, UpTo(1) * UpTo(model.text.size() - at));
        }
        start = static_cast<std::size_t>(area.SelectionStart());
        length = static_cast<std::size_t>(area.SelectionLength());
        SCOPED_TRACE(testing::Message() << "round " << round << " at " << start << ", " << length << " of \""
                                        << Encodings::UTF8.Encode(model.text) << '"');
        (this->*steps[UpTo(std::size(steps) - 1)])();
        Check();
    }
}

} // namespace
