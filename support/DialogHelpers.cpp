#include "support/DialogHelpers.h"

#include "localisation/Localisation.h"
#include "support/AtEnd.h"
#include "support/Covers.h"
#include "support/Diagnostics.h"
#include "support/FileHelpers.h"
#include "toolkit/Dialogs.h"

#include <utility>

namespace {

/// What stands around every dialog. `ask` shows it on the window that it is given, or alone on null.
template <class Ask>
auto InFrame(DesktopWindow* win, const Ask& ask)
{
    Fncts::DrapDiagBox = true;
    const bool drapMenuBefore = std::exchange(Fncts::DrapMenu, false);
    bool hangsOnWin = false;
    const AtEnd restored([&] {
        if (hangsOnWin) Fncts::CtrlDsFenetrDiag(win, false);
        if (win != nullptr) Fncts::WrkArrSegButBugF(*win);
        Fncts::DrapMenu = drapMenuBefore;
        Fncts::DrapDiagBox = false;
    });
    hangsOnWin = Fncts::CtrlDsFenetrDiag(win, true);
    return ask(hangsOnWin ? win : nullptr);
}

std::optional<FolderItem> InitialFolder(const std::optional<FolderItem>& start)
{
    if (start) return Fncts::DossPasPack_f(*start) ? start : start->Parent();
    const auto documents = SpecialFolder::Documents();
    return documents ? documents : Fncts::RetDossCetApp();
}

} // namespace

namespace Fncts {

Int16 MyDialogBox(const Question& question)
{
    return InFrame(question.win, [&](DesktopWindow* window) {
        if (question.btnAction.empty()) TellAuthors(U"My DialogBox, BtnAct = ''");
        const MessageDialog dialog{
            static_cast<int>(question.icon), String(question.message.empty() ? U" " : question.message),
            String(question.explanation),    String(question.btnAction),
            String(question.btnCancel),      String(question.btnAlternate)};
        return static_cast<Int16>(dialog.ShowModal(window));
    });
}

std::optional<FolderItem> MyDialogLoad(const std::optional<FolderItem>& start, StringView prompt, StringView filter,
                                       DesktopWindow* win)
{
    return InFrame(win, [&](DesktopWindow* window) {
        const bool isFile = start && start->Exists() && !DossPasPack_f(*start);
        return OpenFileDialog{String(prompt),
                              InitialFolder(start),
                              String(filter),
                              Localisation::Txt_FiltreTexte(),
                              Localisation::Txt_FiltreTous(),
                              isFile ? start : std::nullopt}
            .ShowModal(window);
    });
}

std::optional<FolderItem> MyDialogSave(StringView name, StringView prompt, DesktopWindow* win)
{
    return InFrame(win, [&](DesktopWindow* window) {
        return SaveFileDialog{String(prompt), InitialFolder({}), String(name)}.ShowModal(window);
    });
}

std::optional<FolderItem> MyDialogFolder(const std::optional<FolderItem>& start, StringView prompt)
{
    return InFrame(nullptr, [&](DesktopWindow* window) {
        return SelectFolderDialog{String(prompt), InitialFolder(start)}.ShowModal(window);
    });
}

} // namespace Fncts
