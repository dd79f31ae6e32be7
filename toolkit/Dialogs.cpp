#include "toolkit/Dialogs.h"

#include "toolkit/DesktopApplication.h"
#include "toolkit/DesktopWindow.h"
#include "toolkit/MessageWindow.h"
#include "toolkit/Probe.h"
#include "toolkit/StrayKeys.h"
#include "toolkit/core/QtText.h"
#include "toolkit/core/TextEncoding.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QOperatingSystemVersion>
#include <QPointer>
#include <QScreen>
#include <QTreeView>
#include <cstdio>
#include <memory>

/// The layer's own door to what hangs a dialog on a window.
class Dialogs {
public:
    /// Null for no window, and for one that can't be seen: a dialog on it would be unseen as well.
    static QWidget* ParentOf(const DesktopWindow* window)
    {
        return window && window->Visible() ? window->Content()->window() : nullptr;
    }
};

namespace {

void Record(Probe& probe, String asked)
{
    probe.Asked.push_back(std::move(asked));
    if (probe.WhileAsking) probe.WhileAsking();
}

/// The answer that a test has prepared.
template <typename Kind>
Kind TakeAnswer(Probe& probe, Kind otherwise)
{
    if (probe.Answers.empty()) return otherwise;
    const Probe::Answer answer = probe.Answers.front();
    probe.Answers.pop_front();
    return std::get<Kind>(answer);
}

String InWords(const MessageDialog& dialog)
{
    String words = dialog.Message;
    if (!dialog.Explanation.empty()) words += U"\n" + dialog.Explanation;
    words += U"[" + dialog.ActionButton + U"]";
    for (const String& caption : {dialog.CancelButton, dialog.AlternateActionButton})
        if (!caption.empty()) words += U"[" + caption + U"]";
    return words;
}

/// Runs a dialog to its end. Null when its window went away meanwhile and took it along.
template <typename Dialog>
std::unique_ptr<Dialog> Finished(Dialog* dialog)
{
    const QPointer<Dialog> watched(dialog);
    if (dialog->parentWidget())
        dialog->setWindowModality(Qt::WindowModal);
    else if (QWidget* const inUse = QApplication::activeWindow())
        // A dialog of no window stops all of them, and must not get lost behind the one that is in use.
        dialog->setParent(inUse, dialog->windowFlags());
    dialog->exec();
    StrayKeys::DialogHasEnded();
    return std::unique_ptr<Dialog>(watched.data());
}

/// Asks for an item by a chooser that `prepare` has made ready.
std::optional<FolderItem> Choose(const String& prompt, const DesktopWindow* window,
                                 const std::optional<FolderItem>& initialFolder, const auto& prepare)
{
    if (Probe* const probe = Probe::Current()) {
        Record(*probe, prompt);
        return TakeAnswer<std::optional<FolderItem>>(*probe, {});
    }
    auto* const chooser = new QFileDialog(Dialogs::ParentOf(window), ToQt(prompt));
    // An alias is an item of its own; the program follows it where it wants to.
    chooser->setOption(QFileDialog::DontResolveSymlinks);
    const bool isMac = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::MacOS;
    chooser->setOption(QFileDialog::DontUseNativeDialog, !isMac);
    // Names, sizes and dates fit beside each other in any font.
    constexpr int letters = 48, lines = 28;
    const QSize room = QSize(letters, lines) * chooser->fontMetrics().height();
    chooser->resize(chooser->sizeHint().expandedTo(room).boundedTo(chooser->screen()->availableSize() * 9 / 10));
    if (auto* const list = chooser->findChild<QTreeView*>()) {
        // By itself each column but the first has the same width, and cuts dates off.
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        // Qt has its texts in few languages; the name tells the type.
        constexpr int typeColumn = 2;
        list->hideColumn(typeColumn);
    }
    if (initialFolder) chooser->setDirectory(QFile::decodeName(initialFolder->Path().c_str()));
    prepare(*chooser);
    const auto finished = Finished(chooser);
    if (!finished || finished->result() != QDialog::Accepted || finished->selectedFiles().isEmpty()) return {};
    return FolderItem(QFile::encodeName(finished->selectedFiles().constFirst()).toStdString());
}

/// What is shown of a filter, with as many of its patterns as there is room for, and behind it all of them, which the
/// chooser doesn't show: "Text (*.txt *.ini …) (*.txt *.ini *.java)" of "Text" and ".txt;.ini;.java".
QString NameFilter(const OpenFileDialog& dialog, const QFontMetrics& font)
{
    constexpr int room = 420;
    QStringList patterns;
    for (const StringView extension : Split(dialog.Filter, U";"))
        patterns << u'*' + ToQt(extension);
    QString shown;
    for (auto count = patterns.size(); shown.isEmpty() || (count >= 0 && font.horizontalAdvance(shown) > room); --count)
        shown = QStringLiteral("%1 (%2%3)")
                    .arg(ToQt(dialog.FilterName), patterns.first(count).join(u' '),
                         count < patterns.size() ? QStringLiteral(" …") : QString());
    return shown + QStringLiteral(" (%1)").arg(patterns.join(u' '));
}

} // namespace

MessageDialog::Button MessageDialog::ShowModal(DesktopWindow* window) const
{
    if (Probe* const probe = Probe::Current()) {
        Record(*probe, InWords(*this));
        return static_cast<Button>(TakeAnswer<int>(*probe, 1));
    }
    if (DesktopApplication::EndRequested()) {
        // Nobody waits for an answer any more.
        std::fprintf(stderr, "%s\n", Encodings::UTF8.Encode(InWords(*this)).c_str());
        return Button::None;
    }
    const auto finished = Finished(MakeMessageWindow(*this, Dialogs::ParentOf(window)));
    return finished ? static_cast<Button>(finished->result()) : Button::None;
}

std::optional<FolderItem> OpenFileDialog::ShowModal(DesktopWindow* window) const
{
    return Choose(PromptText, window, InitialFolder, [this](QFileDialog& chooser) {
        chooser.setFileMode(QFileDialog::ExistingFile);
        chooser.setOption(QFileDialog::HideNameFilterDetails);
        QStringList filters = {ToQt(AllFilesName) + QStringLiteral(" (*)")};
        if (!Filter.empty()) filters.prepend(NameFilter(*this, chooser.fontMetrics()));
        chooser.setNameFilters(filters);
        if (InitialFile) chooser.selectFile(QFile::decodeName(InitialFile->Path().c_str()));
    });
}

std::optional<FolderItem> SelectFolderDialog::ShowModal(DesktopWindow* window) const
{
    return Choose(PromptText, window, InitialFolder, [](QFileDialog& chooser) {
        chooser.setFileMode(QFileDialog::Directory);
        chooser.setOption(QFileDialog::ShowDirsOnly);
    });
}

std::optional<FolderItem> SaveFileDialog::ShowModal(DesktopWindow* window) const
{
    return Choose(PromptText, window, InitialFolder, [this](QFileDialog& chooser) {
        chooser.setAcceptMode(QFileDialog::AcceptSave);
        chooser.selectFile(ToQt(SuggestedFileName));
    });
}

void MessageBox(StringView text)
{
    if (Probe* const probe = Probe::Current()) {
        Record(*probe, String(text));
        return;
    }
    MessageDialog notice;
    notice.Message = text;
    notice.ActionButton = U"OK";
    static_cast<void>(notice.ShowModal());
}
