/// The bar below a window's content. For the sources of this folder only.
#pragma once

#include <QStatusBar>
#include <QTimer>

class QLabel;

/// At its right what is always there, at its left a sentence for a while. A sentence that needs the whole width hides
/// the rest for that time; the middle of a longer one is left out and stands in the tooltip.
class StatusBar final : public QStatusBar {
public:
    explicit StatusBar(QWidget* window);

    void SetStatus(const QString& status);
    /// A screen reader reads the sentence out, wherever the focus is. An empty one takes the last away.
    void Say(const QString& sentence);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Fit();

    QLabel *const sentence_, *const status_;
    QTimer end_;
};
