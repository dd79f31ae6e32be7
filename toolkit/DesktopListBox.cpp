#include "toolkit/DesktopListBox.h"

#include "toolkit/DocumentText.h"
#include "toolkit/core/QtText.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTableWidget>

namespace {

constexpr int heightOfRow = 20;

class Table final : public QTableWidget {
public:
    Table(DesktopListBox& owner, int columns);

    void PasteRows()
    {
        if (owner_.TextPasted && owner_.TakesInput()) owner_.TextPasted(FromQt(QGuiApplication::clipboard()->text()));
    }
    [[nodiscard]] DesktopListBox& Owner() const { return owner_; }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    DesktopListBox& owner_;
};

class Cell final : public QStyledItemDelegate {
public:
    explicit Cell(Table& table)
        : QStyledItemDelegate(&table)
        , table_(table)
    {
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    Table& table_;
};

Table::Table(DesktopListBox& owner, int columns)
    : QTableWidget(0, columns)
    , owner_(owner)
{
    setItemDelegate(new Cell(*this));
    horizontalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(10);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(heightOfRow);
    verticalHeader()->setDefaultSectionSize(heightOfRow);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollMode(ScrollPerPixel);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setDragDropMode(InternalMove);
    setDragDropOverwriteMode(false);
}

/// The key for pasting is also a shortcut of the menu, which would take it first.
bool Table::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste)) {
        event->accept();
        return true;
    }
    return QTableWidget::event(event);
}

void Table::keyPressEvent(QKeyEvent* event)
{
    if (!owner_.TakesInput()) return;
    if (event->matches(QKeySequence::Paste)) return PasteRows();
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex().isValid() && state() != EditingState) return edit(currentIndex());
    QTableWidget::keyPressEvent(event);
}

void Table::mousePressEvent(QMouseEvent* event)
{
    if (!indexAt(event->position().toPoint()).isValid()) setCurrentItem(nullptr);
    QTableWidget::mousePressEvent(event);
}

/// A row is moved as it is: Qt itself would put its cells over those that lie there.
void Table::dropEvent(QDropEvent* event)
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

    std::vector<String> cells;
    cells.reserve(static_cast<std::size_t>(columnCount()));
    for (int column = 0; column < columnCount(); ++column)
        cells.push_back(owner_.CellTextAt(from, column));
    owner_.RemoveRowAt(from);
    if (to > from) --to;
    owner_.AddRowAt(to, cells);
    owner_.SetSelectedRowIndex(to);
}

void Table::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTableWidget::closeEditor(editor, hint);
    if (hint == QAbstractItemDelegate::SubmitModelCache && currentRow() + 1 < rowCount())
        setCurrentCell(currentRow() + 1, currentColumn());
}

void Cell::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (const auto& background = table_.Owner().PaintCellBackground) {
        painter->save();
        painter->translate(option.rect.topLeft());
        Graphics graphics(*painter);
        const bool whole = background(graphics, index.row(), index.column(), option.rect.width(), option.rect.height());
        painter->restore();
        if (whole) return;
    }
    QStyledItemDelegate::paint(painter, option, index);
}

QWidget* Cell::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const
{
    auto* const editor = new QLineEdit(parent);
    editor->setFrame(false);
    connect(editor, &QLineEdit::textEdited, editor, [editor](const QString& text) {
        // Setting a text ends what can be undone.
        if (OneLine(text) == text) return;
        const int caret = editor->cursorPosition();
        editor->setText(OneLine(text));
        editor->setCursorPosition(caret);
    });
    return editor;
}

bool Cell::eventFilter(QObject* editor, QEvent* event)
{
    const bool pastes =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste);
    if (!pastes || !QGuiApplication::clipboard()->text().contains(u'\t'))
        return QStyledItemDelegate::eventFilter(editor, event);
    auto* const widget = qobject_cast<QWidget*>(editor);
    Q_EMIT commitData(widget);
    Q_EMIT closeEditor(widget, NoHint);
    table_.PasteRows();
    return true;
}

} // namespace

DesktopListBox::DesktopListBox(DesktopWindow& window, const Placement& placement, int columns)
    : DesktopUIControl(window, new Table(*this, columns), placement)
{
}

void DesktopListBox::SetColumnNames(const std::vector<String>& names)
{
    QStringList labels;
    for (const String& name : names)
        labels << ToQt(name);
    static_cast<Table*>(widget_)->setHorizontalHeaderLabels(labels);
}

int DesktopListBox::LastRowIndex() const { return static_cast<Table*>(widget_)->rowCount() - 1; }

String DesktopListBox::CellTextAt(int row, int column) const
{
    const QTableWidgetItem* const item = static_cast<Table*>(widget_)->item(row, column);
    return item ? FromQt(item->text()) : String();
}

void DesktopListBox::AddRow(const std::vector<String>& cells) { AddRowAt(LastRowIndex() + 1, cells); }

void DesktopListBox::AddRowAt(int before, const std::vector<String>& cells)
{
    auto* const table = static_cast<Table*>(widget_);
    table->insertRow(before);
    for (int column = 0; column < table->columnCount(); ++column) {
        const auto index = static_cast<std::size_t>(column);
        auto* const item = new QTableWidgetItem(index < cells.size() ? ToQt(cells[index]) : QString());
        item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
        table->setItem(before, column, item);
    }
}

void DesktopListBox::RemoveRowAt(int row)
{
    auto* const table = static_cast<Table*>(widget_);
    // Qt would select a neighbour of the current row.
    if (table->currentRow() == row) table->setCurrentItem(nullptr);
    table->removeRow(row);
}

int DesktopListBox::SelectedRowIndex() const
{
    const QModelIndexList rows = static_cast<Table*>(widget_)->selectionModel()->selectedRows();
    return rows.empty() ? -1 : rows.front().row();
}

void DesktopListBox::SetSelectedRowIndex(int row)
{
    auto* const table = static_cast<Table*>(widget_);
    table->setCurrentCell(row, 0);
    table->scrollToItem(table->item(row, 0));
}
