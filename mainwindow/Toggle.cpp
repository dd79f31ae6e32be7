#include "localisation/Localisation.h"
#include "mainwindow/Sentences.h"
#include "mainwindow/Toggling.h"
#include "mainwindow/WinMain.h"
#include "support/Diagnostics.h"
#include "support/Status.h"
#include "toolkit/Desktop.h"

namespace {

/// The keys held at this moment; both together count as none.
ToggleMode ModeOfKeys()
{
    const bool shift = Keyboard::AsyncShiftKey(), control = Keyboard::AsyncControlKey();
    if (shift == control) return ToggleMode::Invert;
    return shift ? ToggleMode::Enable : ToggleMode::Disable;
}

} // namespace

void WinMain::BtnEnabDis_Pressed()
{
    const ToggleMode mode = ModeOfKeys();
    ReturnFocus(BtnEnabDis);
    if (const Int64 position = TextAreaAff.FirstReturn(); position >= 0)
        TellAuthorsShortly(U"BtnEnabDis, TpEof is used in the Text !\nPos = " + ToText(position));
    const auto [first, text] = TextAreaAff.SelectedLines();
    std::optional<Toggled> toggled =
        ToggleLines(text, {TextAreaAff.SelectionStart() - first, TextAreaAff.SelectionLength()}, mode);
    if (toggled) {
        for (TextChange& change : toggled->changes)
            change.start += first;
        TextAreaAff.Change(toggled->changes, toggled->selection.start + first, toggled->selection.length);
    }
    Fncts::Dire(Counted(toggled ? std::ssize(toggled->changes) : 0, Localisation::Nb_Modifiees()));
}

void WinMain::SelLigneEnt()
{
    const auto [first, text] = TextAreaAff.SelectedLines();
    const Selection line = LineAround(text, TextAreaAff.SelectionStart() - first);
    TextAreaAff.Select(line.start + first, line.length);
}
