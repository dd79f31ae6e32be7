#include "toolkit/StatusBar.h"

#include "toolkit/Appearance.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <utility>

namespace {

constexpr int secondsOfSentence = 20;
/// Milliseconds: a screen reader that is told at once of all that a window enables or shows drops what comes along, and
/// of a caret that goes on only the line where it stays is of interest.
constexpr int calmBeforeReading = 300;
/// Points between a window's left edge and its controls.
constexpr int leftOfControls = 18;

/// A label that screen readers take for a notification: they read it out when it is shown, and not in passing.
class Sentence final : public QLabel {
public:
    Sentence() { QAccessible::installFactory(&Announce); }

private:
    static QAccessibleInterface* Announce(const QString& /*className*/, QObject* object)
    {
        auto* const label = dynamic_cast<Sentence*>(object);
        return label ? new QAccessibleWidget(label, QAccessible::Notification) : nullptr;
    }
};

} // namespace

StatusBar::StatusBar(QWidget* window)
    : QStatusBar(window)
    , sentence_(new Sentence)
    , status_(new QLabel)
    , unseen_(new Sentence)
{
    SetControlFont(*this);
    for (QLabel* const label : {sentence_, status_})
        label->setTextFormat(Qt::PlainText);
    sentence_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setContentsMargins(leftOfControls, 0, 0, 0);
    addWidget(sentence_, 1);
    addPermanentWidget(status_);
    unseen_->setParent(this);
    unseen_->hide();
    // No text makes the window wider or the content lower.
    setMinimumWidth(1);
    setFixedHeight(sizeHint().height());
    end_.setSingleShot(true);
    end_.setInterval(secondsOfSentence * 1000);
    connect(&end_, &QTimer::timeout, this, [this] { Say({}); });
    calm_.setSingleShot(true);
    calm_.setInterval(calmBeforeReading);
    connect(&calm_, &QTimer::timeout, this, &StatusBar::ReadOut);
}

void StatusBar::SetStatus(const QString& status)
{
    status_->setText(status);
    Fit();
}

void StatusBar::Say(const QString& sentence)
{
    SetWords(sentence_, sentence);
    Fit();
    if (sentence.isEmpty()) return end_.stop();
    end_.start();
}

void StatusBar::SayUnseen(const QString& words) { SetWords(unseen_, words); }

void StatusBar::SetWords(QLabel* label, const QString& words)
{
    label->setAccessibleName(words);
    untold_.removeOne(label);
    if (words.isEmpty()) return;
    untold_.append(label);
    calm_.start();
}

void StatusBar::ReadOut()
{
    for (QLabel* const label : std::exchange(untold_, {})) {
        QAccessibleEvent shown(label, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&shown);
    }
}

void StatusBar::resizeEvent(QResizeEvent* event)
{
    QStatusBar::resizeEvent(event);
    Fit();
}

void StatusBar::Fit()
{
    const QString sentence = sentence_->accessibleName();
    const QFontMetrics metrics(sentence_->font());
    const int gap = metrics.averageCharWidth() * 3, room = width() - leftOfControls - gap - height();
    const int beside = room - gap - metrics.horizontalAdvance(status_->text());
    const int wanted = metrics.horizontalAdvance(sentence);
    status_->setVisible(sentence.isEmpty() || wanted <= beside);
    sentence_->setText(metrics.elidedText(sentence, Qt::ElideMiddle, wanted <= beside ? beside : room));
    sentence_->setToolTip(wanted > room ? sentence : QString());
}
