#include "toolkit/MessageWindow.h"

#include "toolkit/DocumentText.h"
#include "toolkit/core/QtText.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace {

QIcon IconOf(const QWidget& window, int type)
{
    constexpr std::array icons{QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxWarning,
                               QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxQuestion};
    if (type < 0 || type >= static_cast<int>(icons.size())) return {};
    return window.style()->standardIcon(icons.at(static_cast<std::size_t>(type)), nullptr, &window);
}

/// A caption as it stands: Qt would take a "&" for the mark of a shortcut.
QString CaptionOf(StringView text) { return ToQt(ReplaceAll(text, U"&", U"&&")); }

/// What a dialog shows of a text: all of it, or whole lines as far as anyone can be asked to read, and "…".
String Shown(const String& text)
{
    if (std::ssize(text) <= MessageDialog::MostShown) return text;
    const std::size_t cut = text.rfind(U'\n', static_cast<std::size_t>(MessageDialog::MostShown));
    return text.substr(0, cut == String::npos ? static_cast<std::size_t>(MessageDialog::MostShown) : cut + 1) + U"…";
}

/// A text that can be read and copied, wraps anywhere where it must, and looks like the window around it.
QTextEdit* MakeText(QWidget* parent)
{
    auto* const text = new QTextEdit(parent);
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setFrameShape(QFrame::NoFrame);
    text->setTabChangesFocus(true);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QPalette colours = text->palette();
    colours.setColor(QPalette::Base, Qt::transparent);
    colours.setColor(QPalette::Text, colours.color(QPalette::WindowText));
    text->setPalette(colours);
    return text;
}

} // namespace

MessageWindow::MessageWindow(const MessageDialog& content, QWidget* parent)
    : QDialog(parent)
{
    auto* const text = MakeText(this);
    const String message = Shown(content.Message);
    AddText(*text, message, Shown(content.Explanation));
    text->setAccessibleName(ToQt(NthField(message, U"\n", 1)));
    auto* const buttons = new QDialogButtonBox(this);
    AddButtons(*buttons, content);

    auto* const columns = new QHBoxLayout;
    if (const QIcon icon = IconOf(*this, content.IconType); !icon.isNull()) {
        auto* const picture = new QLabel(this);
        picture->setPixmap(icon.pixmap(style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this)));
        columns->addWidget(picture, 0, Qt::AlignTop);
    }
    columns->addWidget(text, 1);
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(columns);
    rows->addWidget(buttons);
    rows->setSizeConstraint(QLayout::SetFixedSize);

    const QMargins margins = rows->contentsMargins();
    FitToScreen(*text, buttons->sizeHint().height() + rows->spacing() + margins.top() + margins.bottom());
    setAccessibleName(ToQt(message));
}

void MessageWindow::AddText(QTextEdit& text, const String& message, const String& explanation)
{
    text.setWordWrapMode(WrapModeFor(message + U'\n' + explanation));
    QTextCursor writer(text.document());
    writer.beginEditBlock();
    QTextCharFormat strong;
    strong.setFontWeight(QFont::Bold);
    writer.insertText(ToDocument(message), strong);
    if (!explanation.empty()) {
        writer.insertBlock(QTextBlockFormat(), QTextCharFormat());
        const QTextBlock firstLine = writer.block();
        writer.insertText(ToDocument(explanation), QTextCharFormat());
        QTextBlockFormat apart;
        apart.setTopMargin(text.fontMetrics().height() / 2.0);
        QTextCursor(firstLine).setBlockFormat(apart);
    }
    writer.endEditBlock();
    text.moveCursor(QTextCursor::Start);
}

void MessageWindow::AddButtons(QDialogButtonBox& box, const MessageDialog& content)
{
    using Button = MessageDialog::Button;
    const auto add = [&](const String& caption, QDialogButtonBox::ButtonRole role, Button meaning) {
        auto* const button = box.addButton(CaptionOf(caption), role);
        connect(button, &QPushButton::clicked, this, [this, meaning] { Answer(meaning); });
        return button;
    };
    auto* const action = add(content.ActionButton, QDialogButtonBox::AcceptRole, Button::Action);
    canBeCancelled_ = !content.CancelButton.empty();
    if (canBeCancelled_) add(content.CancelButton, QDialogButtonBox::RejectRole, Button::Cancel);
    if (!content.AlternateActionButton.empty())
        add(content.AlternateActionButton, QDialogButtonBox::DestructiveRole, Button::Alternate);
    action->setDefault(true);
    action->setFocus();
}

void MessageWindow::FitToScreen(QTextEdit& text, int heightOfTheRest) const
{
    constexpr int narrowest = 420;
    constexpr int widest = 640;
    constexpr int percentOfScreen = 60;
    const int mostHeight = screen()->availableGeometry().height() * percentOfScreen / 100 - heightOfTheRest;

    const QTextDocument& document = *text.document();
    QSize size(widest, mostHeight);
    // Measuring a long report takes a second, and the number of its lines or characters alone says that it scrolls.
    constexpr int mostCharacters = 20'000;
    bool fits = document.characterCount() <= mostCharacters &&
                document.blockCount() * text.fontMetrics().height() <= mostHeight;
    if (fits) {
        // The control lays its own document out anew, for its present width, whenever a scroll bar comes or goes.
        const std::unique_ptr<QTextDocument> measured(document.clone());
        measured->setTextWidth(widest);
        size.setWidth(std::clamp(static_cast<int>(std::ceil(measured->idealWidth())), narrowest, widest));
        measured->setTextWidth(size.width());
        const int height = static_cast<int>(std::ceil(measured->size().height()));
        fits = height <= mostHeight;
        if (fits) size.setHeight(height);
    }
    text.setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
    // What scrolls can be reached with the Tab key, and is moved with the arrows.
    text.setFocusPolicy(fits ? Qt::ClickFocus : Qt::StrongFocus);
    const int barWidth = fits ? 0 : text.verticalScrollBar()->sizeHint().width();
    text.setFixedSize(size.width() + barWidth, size.height());
}

void MessageWindow::Answer(MessageDialog::Button button)
{
    pressed_ = button;
    accept();
}

void MessageWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel) && canBeCancelled_)
        Answer(MessageDialog::Button::Cancel);
    else
        QDialog::keyPressEvent(event);
}
