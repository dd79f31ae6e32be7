#include "toolkit/MessageWindow.h"

#include "toolkit/Appearance.h"
#include "toolkit/DocumentText.h"
#include "toolkit/core/QtText.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
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

/// What a dialog shows of a text: all of it, or whole lines as far as anyone can be asked to read, and "…".
String Shown(const String& text)
{
    if (std::ssize(text) <= MessageDialog::MostShown) return text;
    const std::size_t cut = text.rfind(U'\n', static_cast<std::size_t>(MessageDialog::MostShown));
    return text.substr(0, cut == String::npos ? static_cast<std::size_t>(MessageDialog::MostShown) : cut + 1) + U"…";
}

void AddText(QTextEdit& text, const String& message, const String& explanation)
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

void AddButtons(QDialog& dialog, QDialogButtonBox& box, const MessageDialog& content)
{
    using Button = MessageDialog::Button;
    const auto add = [&](const String& caption, QDialogButtonBox::ButtonRole role, Button meaning) {
        auto* const button = box.addButton(Marked(caption), role);
        QObject::connect(button, &QPushButton::clicked, &dialog,
                         [&dialog, meaning] { dialog.done(static_cast<int>(meaning)); });
        return button;
    };
    auto* const action = add(content.ActionButton, QDialogButtonBox::AcceptRole, Button::Action);
    if (!content.CancelButton.empty()) {
        auto* const cancel = add(content.CancelButton, QDialogButtonBox::RejectRole, Button::Cancel);
        QObject::connect(new QShortcut(QKeySequence::Cancel, &dialog), &QShortcut::activated, cancel,
                         &QPushButton::click);
    }
    if (!content.AlternateActionButton.empty())
        add(content.AlternateActionButton, QDialogButtonBox::DestructiveRole, Button::Alternate);
    action->setDefault(true);
    action->setFocus();
}

void FitToScreen(const QDialog& dialog, QTextEdit& text, int heightOfTheRest)
{
    constexpr int narrowest = 420;
    constexpr int widest = 640;
    constexpr int percentOfScreen = 60;
    const int mostHeight = dialog.screen()->availableGeometry().height() * percentOfScreen / 100 - heightOfTheRest;

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
    // More than a sentence can be reached with the Tab key, to be moved with the arrows or copied.
    text.setFocusPolicy(fits && document.blockCount() == 1 ? Qt::ClickFocus : Qt::StrongFocus);
    text.setVerticalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
    const int barWidth = fits ? 0 : text.verticalScrollBar()->sizeHint().width();
    text.setFixedSize(size.width() + barWidth, size.height());
}

} // namespace

QDialog* MakeMessageWindow(const MessageDialog& content, QWidget* parent)
{
    auto* const dialog = new QDialog(parent);
    auto* const text = MakeReadOnlyText(dialog);
    const String message = Shown(content.Message);
    const String explanation = Shown(content.Explanation);
    AddText(*text, message, explanation);
    text->setAccessibleName(ToQt(NthField(message, U"\n", 1)));
    auto* const buttons = new QDialogButtonBox(dialog);
    AddButtons(*dialog, *buttons, content);

    auto* const columns = new QHBoxLayout;
    if (const QIcon icon = IconOf(*dialog, content.IconType); !icon.isNull()) {
        auto* const picture = new QLabel(dialog);
        picture->setPixmap(icon.pixmap(dialog->style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, dialog)));
        columns->addWidget(picture, 0, Qt::AlignTop);
    }
    columns->addWidget(text, 1);
    auto* const rows = new QVBoxLayout(dialog);
    rows->addLayout(columns);
    rows->addWidget(buttons);
    rows->setSizeConstraint(QLayout::SetFixedSize);

    const QMargins margins = rows->contentsMargins();
    FitToScreen(*dialog, *text, buttons->sizeHint().height() + rows->spacing() + margins.top() + margins.bottom());
    dialog->setAccessibleName(ToQt(message));
    dialog->setAccessibleDescription(ToQt(explanation));
    return dialog;
}
