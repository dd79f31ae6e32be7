#include "toolkit/ListBoxTable.h"

#include "toolkit/DocumentText.h"
#include "toolkit/core/QtText.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <algorithm>

namespace {

constexpr int heightOfRow = 20;

/// A change of some neighbouring rows.
class Step final : public QUndoCommand {
public:
    Step(ListBoxTable& table, int first, std::vector<CellRow> before, std::vector<CellRow> after)
        : table_(table)
        , first_(first)
        , before_(std::move(before))
        , after_(std::move(after))
    {
    }
    void undo() override { table_.Replace(first_, static_cast<int>(after_.size()), before_); }
    void redo() override { table_.Replace(first_, static_cast<int>(before_.size()), after_); }

private:
    ListBoxTable& table_;
    const int first_;
    const std::vector<CellRow> before_, after_;
};

auto& CellAt(auto& rows, int row, int column)
{
    return rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

} // namespace

ListBoxTable::ListBoxTable(DesktopListBox& owner, int columns)
    : QTableWidget(0, columns)
    , owner_(owner)
{
    setItemDelegate(MakeCellDelegate(*this));
    horizontalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(10);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("10000")));
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(heightOfRow);
    verticalHeader()->setDefaultSectionSize(heightOfRow);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollMode(ScrollPerPixel);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSelectionBehavior(QTableWidget::SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setDragDropMode(InternalMove);
    setDragDropOverwriteMode(false);
    connect(this, &QTableWidget::itemChanged, this, [this](const QTableWidgetItem* cell) { TakeOver(*cell); });
    connect(this, &QTableWidget::currentCellChanged, this, [this] { wholeRows_ = false; });
    connect(verticalHeader(), &QHeaderView::sectionPressed, this, [this](int row) { SelectWholeRows(row, row); });
}

void ListBoxTable::Begin(const std::vector<CellRow>& rows)
{
    std::vector<CellRow> whole = rows;
    for (CellRow& row : whole)
        row.resize(static_cast<std::size_t>(columnCount()));
    Replace(0, rowCount(), whole);
    setCurrentItem(nullptr);
    history_.clear();
}

void ListBoxTable::CommitCell()
{
    for (auto* const editor : viewport()->findChildren<CellEditor*>())
        if (!editor->isHidden()) commitData(editor); // a closed one is deleted later
}

bool ListBoxTable::Apply(std::vector<CellRow> rows)
{
    for (CellRow& row : rows)
        row.resize(static_cast<std::size_t>(columnCount()));
    if (owner_.Accepts && !owner_.Accepts(rows)) return false;
    const auto [old, fresh] = std::ranges::mismatch(rows_, rows);
    auto oldEnd = rows_.end(), freshEnd = rows.end();
    for (; oldEnd != old && freshEnd != fresh && *std::prev(oldEnd) == *std::prev(freshEnd); --oldEnd)
        --freshEnd;
    if (old == oldEnd && fresh == freshEnd) return true;
    const int first = static_cast<int>(old - rows_.begin());
    history_.push(new Step(*this, first, {old, oldEnd}, {fresh, freshEnd}));
    return true;
}

void ListBoxTable::Replace(int first, int count, const std::vector<CellRow>& after)
{
    const QScopedValueRollback<bool> replacing(replacing_, true);
    const auto old = rows_.begin() + first;
    rows_.insert(rows_.erase(old, old + count), after.begin(), after.end());
    const int newCount = static_cast<int>(after.size());
    int changed = count == newCount ? -1 : 0;
    for (; count > newCount; --count)
        removeRow(first + count - 1);
    for (; count < newCount; ++count)
        insertRow(first + count);
    for (int row = first; row < first + newCount; ++row)
        for (int column = 0; column < columnCount(); ++column)
            if (SetCell(row, column, ToQt(CellAt(rows_, row, column))) && changed < 0) changed = column;
    if (changed < 0 || rowCount() == 0) return;
    // The last of the new rows is scrolled to as well, as far as there is room.
    scrollToItem(item(std::min(first + newCount, rowCount()) - 1, 0));
    setCurrentCell(std::min(first, rowCount() - 1), changed);
    scrollToItem(currentItem());
}

bool ListBoxTable::SetCell(int row, int column, const QString& text)
{
    QTableWidgetItem* cell = item(row, column);
    if (!cell) {
        cell = new QTableWidgetItem;
        cell->setFlags(cell->flags() & ~Qt::ItemIsDropEnabled);
        setItem(row, column, cell);
    }
    if (cell->text() == text) return false;
    cell->setText(text);
    return true;
}

/// Makes a step of what was typed into a cell, or set by a screen reader.
void ListBoxTable::TakeOver(const QTableWidgetItem& cell)
{
    if (replacing_) return;
    const int row = cell.row();
    std::vector<CellRow> rows = rows_;
    CellAt(rows, row, cell.column()) = FromQt(OneLine(cell.text()));
    Apply(std::move(rows));
    // Where that was not accepted, the old text comes back.
    Replace(row, 1, {rows_[static_cast<std::size_t>(row)]});
}

bool ListBoxTable::IsSelectedCell(const QModelIndex& index) const { return !wholeRows_ && index == currentIndex(); }

void ListBoxTable::SelectWholeRows(int first, int last)
{
    const QItemSelection rows(model()->index(first, 0), model()->index(last, columnCount() - 1));
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    wholeRows_ = true;
    viewport()->update();
}

std::pair<int, int> ListBoxTable::SelectedRows() const
{
    const QItemSelection selection = selectionModel()->selection();
    return selection.empty() ? std::pair(0, 0) : std::pair(selection.front().top(), selection.front().bottom() + 1);
}

void ListBoxTable::RemoveSelectedRows()
{
    const auto [first, end] = SelectedRows();
    std::vector<CellRow> rows = rows_;
    rows.erase(rows.begin() + first, rows.begin() + end);
    Apply(std::move(rows));
}

String ListBoxTable::SelectedText() const
{
    if (!wholeRows_) return currentItem() ? FromQt(currentItem()->text()) : String();
    String text;
    for (auto [row, end] = SelectedRows(); row < end; ++row)
        text += TextOfRow(rows_[static_cast<std::size_t>(row)]);
    return text;
}

void ListBoxTable::SetSelectedCell(const String& text)
{
    std::vector<CellRow> rows = rows_;
    CellAt(rows, currentRow(), currentColumn()) = text;
    Apply(std::move(rows));
}

void ListBoxTable::Paste(const std::vector<CellRow>& rows)
{
    const bool isCell = rows.size() == 1 && rows.front().size() == 1;
    if (isCell && !wholeRows_ && currentItem()) return SetSelectedCell(rows.front().front());
    if (owner_.RowsPasted) owner_.RowsPasted(rows);
}

bool ListBoxTable::AppendRow(int column)
{
    std::vector<CellRow> rows = rows_;
    rows.emplace_back();
    if (!Apply(std::move(rows))) return false;
    setCurrentCell(rowCount() - 1, column);
    return true;
}

bool ListBoxTable::CanEdit(EditCommand command) const
{
    switch (command) {
    case EditCommand::Undo:
        return history_.canUndo();
    case EditCommand::Redo:
        return history_.canRedo();
    case EditCommand::Cut:
    case EditCommand::Copy:
    case EditCommand::Clear:
        return !SelectedText().empty();
    case EditCommand::Paste:
        return ClipboardHasText();
    case EditCommand::SelectAll:
        return rowCount() > 0;
    case EditCommand::None:
        break;
    }
    return false;
}

void ListBoxTable::Edit(EditCommand command)
{
    switch (command) {
    case EditCommand::Undo:
        return history_.undo();
    case EditCommand::Redo:
        return history_.redo();
    case EditCommand::Copy:
        return QGuiApplication::clipboard()->setText(ToQt(SelectedText()));
    case EditCommand::Cut:
        QGuiApplication::clipboard()->setText(ToQt(SelectedText()));
        [[fallthrough]];
    case EditCommand::Clear:
        return wholeRows_ ? RemoveSelectedRows() : SetSelectedCell({});
    case EditCommand::Paste:
        return Paste(RowsOf(FromQt(QGuiApplication::clipboard()->text())));
    case EditCommand::SelectAll:
        return SelectWholeRows(0, rowCount() - 1);
    case EditCommand::None:
        break;
    }
}

void ListBoxTable::keyPressEvent(QKeyEvent* event)
{
    if (!owner_.TakesInput()) return;
    if (event->modifiers().testFlag(Qt::AltModifier)) return event->ignore();
    const bool shift = event->modifiers() == Qt::ShiftModifier;
    if (shift && event->key() == Qt::Key_Delete) return RemoveSelectedRows();
    if (shift && event->key() == Qt::Key_Space && currentItem()) return SelectWholeRows(currentRow(), currentRow());
    if (const EditCommand command = CommandOf(*event); command != EditCommand::None) return ::Edit(command, this);
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid() && state() != EditingState) return edit(currentIndex());
    QTableWidget::keyPressEvent(event);
}

void ListBoxTable::mousePressEvent(QMouseEvent* event)
{
    wholeRows_ = false;
    viewport()->update();
    if (!indexAt(event->position().toPoint()).isValid()) setCurrentItem(nullptr);
    QTableWidget::mousePressEvent(event);
}

/// A row is moved as it is: Qt itself would put its cells over those that lie there.
void ListBoxTable::dropEvent(QDropEvent* event)
{
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
    const int from = currentRow();
    if (event->source() != this || from < 0 || !owner_.TakesInput()) return;
    const QPoint point = event->position().toPoint();
    const QModelIndex under = indexAt(point);
    int to = under.isValid() ? under.row() : rowCount();
    if (under.isValid() && point.y() > visualRect(under).center().y()) ++to;
    if (to == from || to == from + 1) return;
    if (to > from) --to;
    std::vector<CellRow> rows = rows_;
    rows.erase(rows.begin() + from);
    rows.insert(rows.begin() + to, rows_[static_cast<std::size_t>(from)]);
    if (Apply(std::move(rows))) setCurrentCell(to, currentColumn());
}

void ListBoxTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool enter = hint == QAbstractItemDelegate::SubmitModelCache,
               tab = hint == QAbstractItemDelegate::EditNextItem;
    const int row = currentRow(), column = currentColumn();
    const bool isLastRow = row + 1 == rowCount(), isLastCell = isLastRow && column + 1 == columnCount();
    const bool isFirstCell = row == 0 && column == 0;
    const bool stays = (tab && isLastCell) || (hint == QAbstractItemDelegate::EditPreviousItem && isFirstCell);
    QTableWidget::closeEditor(editor, stays ? QAbstractItemDelegate::NoHint : hint);
    if (tab && isLastCell && AppendRow(0)) edit(currentIndex());
    if (!enter || row < 0) return;
    if (!isLastRow) return setCurrentCell(row + 1, column);
    const CellRow& cells = rows_.back();
    if (std::ranges::any_of(cells, [](const String& cell) { return !cell.empty(); })) AppendRow(column);
}
