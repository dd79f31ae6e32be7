#include "toolkit/DesktopControls.h"

#include "toolkit/Appearance.h"
#include "toolkit/core/QtText.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

/// Points at the two edges of a button that its caption leaves free.
constexpr int ButtonMargin = 4;
/// Points that the mark of a check box or a choice, or the arrow of a popup menu, takes from its caption.
constexpr int MarkWidth = 20;
constexpr int ArrowWidth = 30;

void SetButtonCaption(QAbstractButton& button, StringView caption, int room, int fontSize = 0)
{
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

String DesktopButton::Caption() const
{
    return ReplaceAll(FromQt(static_cast<QPushButton*>(widget_)->text()), U"&&", U"&");
}

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

DesktopRadioGroup::DesktopRadioGroup(DesktopWindow& window, const Placement& placement, StringView captions)
    : DesktopUIControl(window, new QWidget, placement)
    , choices_(new QButtonGroup(widget_))
{
    auto* const rows = new QVBoxLayout(widget_);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    // The focus of the group is that of the choice which is selected.
    QObject::connect(choices_, &QButtonGroup::idToggled, widget_, [this](int id, bool on) {
        if (on) widget_->setFocusProxy(choices_->button(id));
    });
    for (int id = 0; const StringView caption : Split(captions, EndOfLine::Native)) {
        auto* const choice = new QRadioButton(widget_);
        choice->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
        SetButtonCaption(*choice, caption, Width() - MarkWidth);
        rows->addWidget(choice, 1);
        choices_->addButton(choice, id++);
    }
    SetSelectedIndex(0);
}

int DesktopRadioGroup::SelectedIndex() const { return choices_->checkedId(); }

void DesktopRadioGroup::SetSelectedIndex(int index)
{
    if (QAbstractButton* const choice = choices_->button(index)) choice->setChecked(true);
}

namespace {

/// Closed it lets the wheel pass, so that no row is chosen by accident. Its keys for opening are its own, also where a
/// menu has them.
class Popup final : public QComboBox {
protected:
    bool event(QEvent* event) override
    {
        const bool isPress = event->type() == QEvent::KeyPress;
        if (!isPress && event->type() != QEvent::ShortcutOverride) return QComboBox::event(event);
        const QKeyCombination keys = static_cast<QKeyEvent*>(event)->keyCombination();
        if (keys != (Qt::ALT | Qt::Key_Down) && keys != (Qt::ALT | Qt::Key_Up)) return QComboBox::event(event);
        event->accept();
        if (isPress) showPopup();
        return true;
    }
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

} // namespace

DesktopPopupMenu::DesktopPopupMenu(DesktopWindow& window, const Placement& placement, StringView rows, int selectedRow)
    : DesktopUIControl(window, new Popup, placement)
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
    auto* const shortcut = new QShortcut(QKeySequence(ToQt(keys)), widget_);
    shortcut->setContext(Qt::ApplicationShortcut);
    QObject::connect(shortcut, &QShortcut::activated, widget_, [this] { static_cast<QPushButton*>(widget_)->click(); });
}

DesktopSlider::DesktopSlider(DesktopWindow& window, const Placement& placement, const SliderStyle& style)
    : DesktopUIControl(window, new QSlider(Qt::Horizontal), placement)
{
    auto* const slider = static_cast<QSlider*>(widget_);
    slider->setRange(style.minimum, style.maximum);
    slider->setSingleStep(style.lineStep);
    slider->setPageStep(style.pageStep);
    slider->setValue(style.value);
    QObject::connect(slider, &QSlider::valueChanged, slider, [this] {
        if (ValueChanged) ValueChanged();
    });
}

int DesktopSlider::Value() const { return static_cast<QSlider*>(widget_)->value(); }

void DesktopSlider::SetValue(int value) { static_cast<QSlider*>(widget_)->setValue(value); }

DesktopProgressBar::DesktopProgressBar(DesktopWindow& window, const Placement& placement)
    : DesktopUIControl(window, new QProgressBar, placement)
{
    static_cast<QProgressBar*>(widget_)->setRange(0, 100);
}

void DesktopProgressBar::SetValue(int percent) { static_cast<QProgressBar*>(widget_)->setValue(percent); }
