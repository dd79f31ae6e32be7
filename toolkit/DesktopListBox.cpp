#include "toolkit/DesktopListBox.h"

#include "toolkit/ListBoxTable.h"
#include "toolkit/core/QtText.h"

namespace {

ListBoxTable& Table(QWidget* widget) { return *static_cast<ListBoxTable*>(widget); }

} // namespace

DesktopListBox::DesktopListBox(DesktopWindow& window, const Placement& placement, int columns)
    : DesktopUIControl(window, new ListBoxTable(*this, columns), placement)
{
}

void DesktopListBox::SetColumnNames(const std::vector<String>& names)
{
    QStringList labels;
    for (const String& name : names)
        labels << ToQt(name);
    Table(widget_).setHorizontalHeaderLabels(labels);
}

const std::vector<CellRow>& DesktopListBox::Rows() const { return Table(widget_).Rows(); }

void DesktopListBox::SetRows(const std::vector<CellRow>& rows) { Table(widget_).Begin(rows); }

bool DesktopListBox::InsertRows(int before, const std::vector<CellRow>& rows)
{
    Table(widget_).CommitCell(); // a screen reader's press takes no focus away from it
    std::vector<CellRow> all = Rows();
    all.insert(all.begin() + before, rows.begin(), rows.end());
    return Table(widget_).Apply(std::move(all));
}

void DesktopListBox::RemoveRowAt(int row)
{
    Table(widget_).CommitCell();
    std::vector<CellRow> all = Rows();
    all.erase(all.begin() + row);
    Table(widget_).Apply(std::move(all));
    // The neighbour is not selected, so that another press doesn't remove it.
    Table(widget_).setCurrentItem(nullptr);
}

void DesktopListBox::EditCell(int row, int column)
{
    SetFocus();
    Table(widget_).setCurrentCell(row, column);
    Table(widget_).editItem(Table(widget_).currentItem());
}

int DesktopListBox::SelectedRowIndex() const
{
    const QModelIndexList rows = Table(widget_).selectionModel()->selectedRows();
    return rows.empty() ? -1 : rows.front().row();
}

void DesktopListBox::SetSelectedRowIndex(int row)
{
    Table(widget_).setCurrentCell(row, 0);
    Table(widget_).scrollToItem(Table(widget_).currentItem());
}
