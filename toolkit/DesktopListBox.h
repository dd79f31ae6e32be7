/// A table of texts whose cells are edited in place.
#pragma once

#include "toolkit/CellText.h"
#include "toolkit/DesktopCanvas.h"
#include "toolkit/DesktopUIControl.h"

#include <functional>

/// Columns of equal width without a header; one row can be selected, in it one cell or, by the number at
/// its left edge or Shift+Space, the whole row. Rows are dragged to another place.
///
/// A cell is edited after a double click, by typing, or by Enter or F2. Enter ends that and goes down, Tab goes on with
/// the next cell, or the first one of the next row, and Esc gives the old text back; behind the last row both make a
/// new one. Cells and rows are copied, cut, pasted and deleted by the Edit menu and its keys, and each change of the
/// table can be undone. Tabs and line ends become blanks in a cell.
class DesktopListBox : public DesktopUIControl {
public:
    DesktopListBox(DesktopWindow& window, const Placement& placement, int columns);

    /// What a screen reader calls the columns.
    void SetColumnNames(const std::vector<String>& names);

    /// What is typed into an open cell comes in when that closes.
    [[nodiscard]] const std::vector<CellRow>& Rows() const;
    /// Another table, whose changes begin now.
    void SetRows(const std::vector<CellRow>& rows);

    /// Puts rows above row `before`, selects the first of them and scrolls there; missing cells are empty. This and the
    /// removal are changes like those of the user; false if they are not accepted.
    bool InsertRows(int before, const std::vector<CellRow>& rows);
    void RemoveRowAt(int row);
    /// Opens the cell for the user's typing.
    void EditCell(int row, int column);

    /// -1 without one.
    [[nodiscard]] int SelectedRowIndex() const;
    /// Selects the row and scrolls to it.
    void SetSelectedRowIndex(int row);

    /// Paints a cell of that width and height before its text is drawn; true leaves the text out.
    std::function<bool(Graphics& graphics, int row, int column, int width, int height)> PaintCellBackground;
    /// Whether the table may become these rows; what is not accepted leaves it as it was.
    std::function<bool(const std::vector<CellRow>& rows)> Accepts;
    /// The user pasted more than one cell, or one while no cell was selected.
    std::function<void(std::vector<CellRow> rows)> RowsPasted;
};
