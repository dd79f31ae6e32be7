#include "toolkit/DesktopControls.h"

#include "toolkit/Appearance.h"
#include "toolkit/core/QtText.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

/// Points at the two edges of a button that its caption leaves free.
constexpr int ButtonMargin = 4;
/// Points that the mark of a check box or a choice, or the arrow of a popup menu, takes from its caption.
constexpr int MarkWidth = 20;
constexpr int ArrowWidth = 30;

void SetButtonCaption(QAbstractButton& button, StringView caption, int room, int fontSize = 0)
{
    ProvideSymbols(button, caption);
    button.setText(Marked(caption));
    FitFont(button, ToQt(caption), room, fontSize);
}

} // namespace

DesktopButton::DesktopButton(DesktopWindow& window, const Placement& placement, StringView caption, int fontSize)
    : DesktopUIControl(window, new QPushButton, placement)
    , fontSize_(fontSize)
{
    SetCaption(caption);
    auto* button = static_cast<QPushButton*>(widget_);
    QObject::connect(button, &QPushButton::clicked, button, [this] {
        if (Pressed && TakesInput()) Pressed();
    });
}

String DesktopButton::Caption() const { return Unmarked(static_cast<QPushButton*>(widget_)->text()); }

void DesktopButton::SetCaption(StringView caption)
{
    SetButtonCaption(*static_cast<QPushButton*>(widget_), caption, Width() - 2 * ButtonMargin, fontSize_);
}

void DesktopButton::SetDefault()
{
    auto* const button = static_cast<QPushButton*>(widget_);
    button->setDefault(true);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        QObject::connect(new QShortcut(key, button), &QShortcut::activated, button, [button] {
            auto* const focused = qobject_cast<QPushButton*>(button->window()->focusWidget());
            (focused ? focused : button)->click();
        });
}

void DesktopButton::SetCancel()
{
    auto* const button = static_cast<QPushButton*>(widget_);
    QObject::connect(new QShortcut(Qt::Key_Escape, button), &QShortcut::activated, button, &QPushButton::click);
}

DesktopCheckBox::DesktopCheckBox(DesktopWindow& window, const Placement& placement, StringView caption)
    : DesktopUIControl(window, new QCheckBox, placement)
{
    SetButtonCaption(*static_cast<QCheckBox*>(widget_), caption, Width() - MarkWidth);
}

bool DesktopCheckBox::Value() const { return static_cast<QCheckBox*>(widget_)->isChecked(); }

void DesktopCheckBox::SetValue(bool checked) { static_cast<QCheckBox*>(widget_)->setChecked(checked); }

namespace {

/// Radio buttons of equal height; the focus of the group is that of the button which is selected.
class Choices final : public QWidget {
public:
    Choices()
    {
        rows_->setContentsMargins(0, 0, 0, 0);
        rows_->setSpacing(0);
    }

    void Fill(const std::vector<StringView>& captions, int room)
    {
        qDeleteAll(group_.buttons());
        for (int id = 0; StringView caption : captions) {
            auto* choice = new QRadioButton(this);
            choice->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
            rows_->addWidget(choice, 1);
            group_.addButton(choice, id++);
            SetButtonCaption(*choice, caption, room);
        }
        Select(0);
    }
    [[nodiscard]] int Selected() const { return group_.checkedId(); }
    void Select(int id)
    {
        if (QAbstractButton* choice = group_.button(id)) choice->setChecked(true);
    }

protected:
    void focusInEvent(QFocusEvent*) override
    {
        if (QAbstractButton* choice = group_.checkedButton()) choice->setFocus();
    }

private:
    QVBoxLayout* const rows_ = new QVBoxLayout(this);
    QButtonGroup group_;
};

} // namespace

DesktopRadioGroup::DesktopRadioGroup(DesktopWindow& window, const Placement& placement)
    : DesktopUIControl(window, new Choices, placement)
{
}

void DesktopRadioGroup::SetInitialValue(StringView captions)
{
    static_cast<Choices*>(widget_)->Fill(Split(captions, EndOfLine::Native), Width() - MarkWidth);
}

int DesktopRadioGroup::SelectedIndex() const { return static_cast<Choices*>(widget_)->Selected(); }

void DesktopRadioGroup::SetSelectedIndex(int index) { static_cast<Choices*>(widget_)->Select(index); }

DesktopPopupMenu::DesktopPopupMenu(DesktopWindow& window, const Placement& placement, StringView rows, int selectedRow)
    : DesktopUIControl(window, new QComboBox, placement)
    , row_(selectedRow)
{
    auto* popup = static_cast<QComboBox*>(widget_);
    for (StringView row : Split(rows, EndOfLine::Native))
        popup->addItem(ToQt(row));
    FitFont(*popup, ToQt(rows), Width() - ArrowWidth);
    popup->setCurrentIndex(selectedRow);
    QObject::connect(popup, &QComboBox::currentIndexChanged, popup, [this](int row) {
        if (!TakesInput()) return SetSelectedRowIndex(row_);
        row_ = row;
        if (SelectionChanged) SelectionChanged();
    });
}

int DesktopPopupMenu::SelectedRowIndex() const { return static_cast<QComboBox*>(widget_)->currentIndex(); }

void DesktopPopupMenu::SetSelectedRowIndex(int row)
{
    const QSignalBlocker silence(widget_);
    static_cast<QComboBox*>(widget_)->setCurrentIndex(row);
    row_ = SelectedRowIndex();
}

String DesktopPopupMenu::SelectedRowText() const { return FromQt(static_cast<QComboBox*>(widget_)->currentText()); }

DesktopSegmentedButton::DesktopSegmentedButton(DesktopWindow& window, const Placement& placement, StringView caption)
    : DesktopUIControl(window, new QPushButton, placement)
{
    auto* segment = static_cast<QPushButton*>(widget_);
    segment->setCheckable(true);
    SetButtonCaption(*segment, caption, Width() - 2 * ButtonMargin);
    // A screen reader toggles the button without a click.
    QObject::connect(segment, &QPushButton::toggled, segment, [this](bool on) {
        if (!TakesInput()) return SetSelected(0, !on);
        if (Pressed) Pressed(0);
    });
}

bool DesktopSegmentedButton::Selected(int segmentIndex) const
{
    return segmentIndex == 0 && static_cast<QPushButton*>(widget_)->isChecked();
}

void DesktopSegmentedButton::SetSelected(int segmentIndex, bool selected)
{
    const QSignalBlocker silence(widget_);
    if (segmentIndex == 0) static_cast<QPushButton*>(widget_)->setChecked(selected);
}

void DesktopSegmentedButton::SetShortcut(StringView keys)
{
    static_cast<QPushButton*>(widget_)->setShortcut(QKeySequence(ToQt(keys)));
}
