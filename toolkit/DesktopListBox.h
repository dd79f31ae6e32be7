/// A table of texts whose cells are edited in place.
#pragma once

#include "toolkit/DesktopCanvas.h"
#include "toolkit/DesktopUIControl.h"

#include <functional>
#include <initializer_list>

/// Columns of equal width without a header; one row can be selected, and rows are dragged to another place.
///
/// A cell is edited after a double click, by typing, or by Enter or F2. Enter ends that and goes down, Tab goes on with
/// the next cell, or the first one of the next row, and Esc gives the old text back. A tab or a line end that comes in
/// there becomes a blank.
class DesktopListBox : public DesktopUIControl {
public:
    DesktopListBox(DesktopWindow& window, const Placement& placement, int columns);

    /// What a screen reader calls the columns.
    void SetColumnNames(const std::vector<String>& names);

    /// -1 for an empty table.
    [[nodiscard]] int LastRowIndex() const;
    [[nodiscard]] String CellTextAt(int row, int column) const;
    /// A row at the end, or above row `before`. Missing cells are empty.
    void AddRow(const std::vector<String>& cells);
    void AddRowAt(int before, const std::vector<String>& cells);
    void RemoveRowAt(int row);

    /// -1 without one.
    [[nodiscard]] int SelectedRowIndex() const;
    /// Selects the row and scrolls to it.
    void SetSelectedRowIndex(int row);

    /// Paints a cell of that width and height before its text is drawn; true leaves the text out.
    std::function<bool(Graphics& graphics, int row, int column, int width, int height)> PaintCellBackground;
    /// The user pasted a text while no cell was edited, or one of several cells anywhere.
    std::function<void(const String& text)> TextPasted;
};
