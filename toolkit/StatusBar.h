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
    /// Is read out like a sentence, but not shown. An empty one takes back what isn't read yet.
    void SayUnseen(const QString& words);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Fit();
    void SetWords(QLabel* label, const QString& words);
    void ReadOut();

    QLabel *const sentence_, *const status_, *const unseen_;
    QTimer end_, calm_;
    /// What is to be read out.
    QList<QLabel*> untold_;
};
