#include "toolkit/DocumentText.h"
#include "toolkit/ListBoxTable.h"
#include "toolkit/core/QtText.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <limits>

namespace {

/// Draws the cells and opens their editors.
class Cell final : public QStyledItemDelegate {
public:
    explicit Cell(ListBoxTable& table)
        : QStyledItemDelegate(&table)
        , table_(table)
    {
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                          const QModelIndex& /*index*/) const override
    {
        return new CellEditor(table_, parent);
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    ListBoxTable& table_;
};

void Cell::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    // The view has painted the row as selected.
    if (table_.IsSelectedCell(index)) painter->fillRect(option.rect, option.palette.base());
    if (const auto& background = table_.Owner().PaintCellBackground) {
        painter->save();
        painter->translate(option.rect.topLeft());
        Graphics graphics(*painter);
        const bool whole = background(graphics, index.row(), index.column(), option.rect.width(), option.rect.height());
        painter->restore();
        if (whole) return;
    }
    QStyledItemDelegate::paint(painter, option, index);
    if (!table_.IsSelectedCell(index)) return;
    constexpr int frame = 2;
    painter->setPen(QPen(option.palette.highlight(), frame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(option.rect.adjusted(frame / 2, frame / 2, -frame / 2, -frame / 2));
}

void Cell::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // Qt would lay out all of a long text before it leaves out what has no room.
    constexpr int mostShown = 1000;
    option->text.truncate(mostShown);
    if (table_.IsSelectedCell(index)) option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
}

bool Cell::eventFilter(QObject* editor, QEvent* event)
{
    auto* const cell = dynamic_cast<CellEditor*>(editor);
    const EditCommand command =
        cell && event->type() == QEvent::KeyPress ? CommandOf(*static_cast<QKeyEvent*>(event)) : EditCommand::None;
    if (command == EditCommand::None || !cell->CanEdit(command)) return QStyledItemDelegate::eventFilter(editor, event);
    cell->Edit(command);
    return true;
}

} // namespace

QAbstractItemDelegate* MakeCellDelegate(ListBoxTable& table) { return new Cell(table); }

CellEditor::CellEditor(ListBoxTable& table, QWidget* parent)
    : QLineEdit(parent)
    , table_(table)
{
    setFrame(false);
    setMaxLength(std::numeric_limits<int>::max());
    KeepOneLine(*this);
}

bool CellEditor::CanEdit(EditCommand command) const
{
    const bool untouched = !isUndoAvailable() && !isRedoAvailable();
    const bool goesOn = command == EditCommand::Undo ? !isUndoAvailable() : command == EditCommand::Redo && untouched;
    return goesOn ? table_.CanEdit(command) : command == EditCommand::Paste && ClipboardHasText();
}

void CellEditor::Edit(EditCommand command)
{
    if (command == EditCommand::Paste) {
        const std::vector<CellRow> rows = RowsOf(FromQt(QGuiApplication::clipboard()->text()));
        if (rows.size() == 1 && rows.front().size() == 1) return insert(ToQt(rows.front().front()));
        Q_EMIT table_.itemDelegate()->commitData(this);
        Q_EMIT table_.itemDelegate()->closeEditor(this);
        return table_.Paste(rows);
    }
    Q_EMIT table_.itemDelegate()->closeEditor(this, QAbstractItemDelegate::RevertModelCache);
    table_.Edit(command);
}
