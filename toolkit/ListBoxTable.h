/// The widget behind DesktopListBox. For the sources of this folder only.
#pragma once

#include "toolkit/DesktopListBox.h"
#include "toolkit/EditCommands.h"

#include <QLineEdit>
#include <QTableWidget>
#include <QUndoStack>

class ListBoxTable final : public QTableWidget, public EditTarget {
public:
    ListBoxTable(DesktopListBox& owner, int columns);

    [[nodiscard]] DesktopListBox& Owner() const { return owner_; }
    /// What the table held after its last step.
    [[nodiscard]] const std::vector<CellRow>& Rows() const { return rows_; }
    /// Takes these rows as they are, with no history.
    void Begin(const std::vector<CellRow>& rows);
    /// Takes over what is typed into an open cell.
    void CommitCell();
    /// Makes the table hold these rows, as one step that can be undone; false if the owner doesn't accept them.
    bool Apply(std::vector<CellRow> rows);
    /// Puts `after` in the place of so many rows, and goes there if that changes anything.
    void Replace(int first, int count, const std::vector<CellRow>& after);
    void Paste(const std::vector<CellRow>& rows);

    [[nodiscard]] bool CanEdit(EditCommand command) const override;
    void Edit(EditCommand command) override;
    /// Whether that cell alone is selected, not its row.
    [[nodiscard]] bool IsSelectedCell(const QModelIndex& index) const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    void TakeOver(const QTableWidgetItem& cell);
    bool SetCell(int row, int column, const QString& text);
    void SelectWholeRows(int first, int last);
    /// The first row that is selected, and the one behind the last.
    [[nodiscard]] std::pair<int, int> SelectedRows() const;
    void RemoveSelectedRows();
    [[nodiscard]] String SelectedText() const;
    void SetSelectedCell(const String& text);
    /// Goes to a new row at the end; false if the owner doesn't accept it.
    bool AppendRow(int column);

    DesktopListBox& owner_;
    std::vector<CellRow> rows_;
    QUndoStack history_;
    /// Rows as a whole are selected, not a cell.
    bool wholeRows_ = false;
    bool replacing_ = false;
};

QAbstractItemDelegate* MakeCellDelegate(ListBoxTable& table);

/// The editor of a cell. Undo and redo go on in the table where there is nothing more to undo in the cell.
class CellEditor final : public QLineEdit, public EditTarget {
public:
    CellEditor(ListBoxTable& table, QWidget* parent);

    [[nodiscard]] bool CanEdit(EditCommand command) const override;
    void Edit(EditCommand command) override;

private:
    ListBoxTable& table_;
};
