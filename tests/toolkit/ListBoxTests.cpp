#include "tests/toolkit/WidgetTest.h"
#include "toolkit/DesktopListBox.h"
#include "toolkit/EditCommands.h"

#include <QClipboard>
#include <QHeaderView>
#include <QTableWidget>

namespace {

/// Rows as text: "a|b/c|d".
String Shown(const std::vector<CellRow>& rows)
{
    String text;
    for (const CellRow& row : rows)
        text += (text.empty() ? U"" : U"/") + Join(std::vector<StringView>(row.begin(), row.end()), U"|");
    return text;
}

TEST(CellText, IsReadAsSpreadsheetsWriteIt)
{
    const std::tuple<const char*, StringView, StringView> cases[] = {
        {"one cell as it stands", U"\"a\" b", U"\"a\" b"},
        {"the last line end is none", U"a\r\n", U"a"},
        {"rows and cells", U"a\tb\r\n\rc\t\n", U"a|b//c|"},
        {"a quoted cell holds what parts cells", U"\"a\tb\nc\"\t\"\"\n", U"a b c|"},
        {"line ends at its end are dropped", U"\"a\n\n\"\tb", U"a|b"},
        {"doubled quotes", U"\"say \"\"hi\"\"\"\t\"\"\"\"", U"say \"hi\"|\""},
        {"what only begins with a quote stands as it is", U"\"a\" b\t\"\"c\t\"d\n\"e", U"\"a\" b|\"\"c|\"d/\"e"},
    };
    for (const auto& [name, text, rows] : cases) {
        SCOPED_TRACE(name);
        EXPECT_EQ(Shown(RowsOf(text)), rows);
        String again;
        for (const CellRow& row : RowsOf(text))
            again += TextOfRow(row);
        EXPECT_EQ(Shown(RowsOf(again + U"\t")), String(rows) + U"/|") << "as it was copied";
    }
}

struct ListBoxTest : ::testing::Test {
    DesktopWindow window{{.title = U"Table", .width = 300, .height = 200, .hasMenuBar = true}};
    DesktopListBox table{window, {0, 0, 300, 80, Lock::Left | Lock::Top, 0}, 3};
    const std::vector<CellRow> before = {{U"a", U"b", U"c"}, {U"d", U"e", U""}};

    void SetUp() override
    {
        table.SetName(U"table");
        table.Accepts = [](const std::vector<CellRow>& rows) {
            return rows.size() < 5 && (rows.empty() || rows[0][0] != U"no");
        };
        table.RowsPasted = [this](const std::vector<CellRow>& rows) {
            table.InsertRows(table.SelectedRowIndex() + 1, rows);
        };
        ShowActive(window);
    }

    void Start(int row, int column)
    {
        auto& widget = Find<QTableWidget>("table");
        widget.setFocus();
        table.SetRows(before);
        widget.setCurrentCell(row, column);
    }
    /// Keys as in "Shift+Backtab", typed texts as in "'text".
    static void Press(std::initializer_list<const char*> keys)
    {
        for (const char* key : keys) {
            const auto combination = QKeySequence(QLatin1String(key))[0];
            if (*key == '\'')
                for (const char* typed = key + 1; *typed != 0; ++typed)
                    QTest::keyClick(QApplication::focusWidget(), *typed);
            else
                QTest::keyClick(QApplication::focusWidget(), combination.key(), combination.keyboardModifiers());
            // Qt takes over an edited cell after the key.
            QApplication::processEvents();
        }
    }
};

TEST_F(ListBoxTest, TheKeysChangeTheTable)
{
    const struct {
        const char* name;
        int row, column;
        std::initializer_list<const char*> keys;
        StringView after;
    } cases[] = {
        // clang-format off
        {"Tab goes on, behind the last cell to a new row", 1, 1, {"'x", "Tab", "'y", "Tab", "'z", "Tab"}, U"a|b|c/d|x|y/z||"},
        {"Shift+Tab goes back, in the first cell it stays", 0, 1, {"'x", "Shift+Backtab", "'y", "Shift+Backtab", "'z", "Return"}, U"z|x|c/d|e|"},
        {"Enter goes down, behind a row that isn't empty to a new one", 0, 2, {"'x", "Return", "'y", "Return", "Return", "Return"}, U"a|b|x/d|e|y/||"},
        {"behind the last row that is accepted Tab stays", 1, 2, {"'x", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "'y", "Return"}, U"a|b|c/d|e|x/||/||y"},
        {"a cell is undone and redone", 0, 0, {"'x", "Return", "'y", "Return", "Ctrl+Z", "Ctrl+Z", "Ctrl+Z", "Ctrl+Shift+Z"}, U"x|b|c/d|e|"},
        {"undo goes on from an untouched cell", 0, 0, {"'x", "Tab", "Ctrl+Z"}, U"a|b|c/d|e|"},
        {"undo in a touched cell stays there", 0, 0, {"'x", "Tab", "'y", "Ctrl+Z", "Return"}, U"x|b|c/d|e|"},
        {"a new row is undone", 1, 2, {"'x", "Tab", "Esc", "Ctrl+Z"}, U"a|b|c/d|e|x"},
        {"Delete empties a cell", 0, 1, {"Del"}, U"a||c/d|e|"},
        {"Delete removes a whole row", 0, 1, {"Shift+Space", "Del"}, U"d|e|"},
        {"after a move only its cell is selected", 0, 1, {"Shift+Space", "Down", "Del"}, U"a|b|c/d||"},
        {"Shift+Delete removes the row", 0, 1, {"Shift+Del"}, U"d|e|"},
        {"the row that is left is gone to", 0, 1, {"Shift+Del", "Del"}, U"|e|"},
        {"all rows are removed, and undone", 0, 1, {"Ctrl+A", "Del", "Ctrl+Z"}, U"a|b|c/d|e|"},
        {"a cell is copied to a cell", 0, 0, {"Ctrl+C", "Down", "Ctrl+V"}, U"a|b|c/a|e|"},
        {"a row is cut, and pasted below another", 0, 0, {"Shift+Space", "Ctrl+X", "Ctrl+V"}, U"d|e|/a|b|c"},
        {"rows that are pasted into an open cell are rows", 0, 0, {"Ctrl+A", "Ctrl+C", "'x", "Ctrl+V"}, U"x|b|c/a|b|c/d|e|/d|e|"},
        {"what isn't accepted is taken back", 0, 0, {"'no", "Return", "Ctrl+A", "Ctrl+C", "Ctrl+V", "Ctrl+V"}, U"a|b|c/a|b|c/d|e|/d|e|"},
        // clang-format on
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        Start(row.row, row.column);
        Press(row.keys);
        EXPECT_EQ(Shown(table.Rows()), row.after);
    }
}

TEST_F(ListBoxTest, GoesToWhatChanges)
{
    Start(0, 0);
    table.InsertRows(2, {CellRow(3), {U"x"}});
    EXPECT_EQ(table.SelectedRowIndex(), 2);
    auto& widget = Find<QTableWidget>("table");
    EXPECT_TRUE(widget.viewport()->rect().intersects(widget.visualItemRect(widget.item(3, 0))))
        << "the last of them is seen";
    Press({"Home", "Ctrl+Z", "Ctrl+Shift+Z"});
    EXPECT_EQ(table.SelectedRowIndex(), 2);
    table.RemoveRowAt(2);
    EXPECT_EQ(table.SelectedRowIndex(), -1) << "another removal needs another choice";
    QTest::mouseClick(widget.verticalHeader()->viewport(), Qt::LeftButton, {}, {5, 30});
    Press({"Del"});
    EXPECT_EQ(Shown(table.Rows()), U"a|b|c/x||") << "the row's edge selects it all";
    widget.item(0, 0)->setText(QStringLiteral("x\ty\n"));
    EXPECT_EQ(table.Rows()[0][0], U"x y ") << "as a screen reader sets it";
    table.SetRows({{String(40'000, U'x')}});
    table.EditCell(0, 0);
    Press({"End", "'y", "Return"});
    EXPECT_EQ(table.Rows()[0][0].size(), 40'001U);
    table.EditCell(0, 1);
    Press({"'z"});
    table.InsertRows(1, {CellRow(3)});
    EXPECT_EQ(table.Rows()[0][1], U"z") << "what is typed stays when a screen reader presses a button";
}

TEST_F(ListBoxTest, TheMenuIsGreyWhereAKeyDoesNothing)
{
    QApplication::clipboard()->clear();
    const auto enabled = [](std::initializer_list<const char*> keys) {
        Press(keys);
        std::string names;
        for (auto command = EditCommand::Undo;
             const char* name : {"Undo ", "Redo ", "Cut ", "Copy ", "Paste ", "Clear ", "All "}) {
            if (CanEdit(command, QApplication::focusWidget())) names += name;
            command = static_cast<EditCommand>(static_cast<int>(command) + 1);
        }
        return names;
    };
    Start(1, 2);
    EXPECT_EQ(enabled({}), "All ");
    EXPECT_EQ(enabled({"Left"}), "Cut Copy Clear All ");
    EXPECT_EQ(enabled({"Ctrl+X"}), "Undo Paste All ");
    EXPECT_EQ(enabled({"F2"}), "Undo Paste ") << "from the open cell into the table";
    EXPECT_EQ(enabled({"Ctrl+Z"}), "Redo Cut Copy Paste Clear All ");
}

} // namespace
