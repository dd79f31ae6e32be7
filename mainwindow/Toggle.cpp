#include "mainwindow/Toggling.h"
#include "mainwindow/WinMain.h"
#include "toolkit/Desktop.h"
#include "toolkit/Dialogs.h"

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
    const String text = TextAreaAff.Text();
    if (const Int64 position = IndexOf(text, EndOfLine::CR); position >= 0)
        MessageBox(U"Error ! Please contact the authors.\nBtnEnabDis, TpEof is used in the Text !\nPos = " +
                   ToText(position));
    const Selection selection{TextAreaAff.SelectionStart(), TextAreaAff.SelectionLength()};
    std::optional<Toggled> toggled = ToggleLines(text, selection, mode);
    if (!toggled) return;
    if (String* shown = TextOfRow(PopMenuAff.SelectedRowIndex()))
        *shown = std::move(toggled->text);
    else
        MessageBox(U"Error ! Please contact the authors.\nBtnEnabDis, Which Selection in PopMenuAff ?");
    ShowRow(&DesktopTextArea::ReplaceStyledText);
    TextAreaAff.Select(toggled->selection.start, toggled->selection.length);
}

void WinMain::SelLigneEnt()
{
    const Selection line = LineAround(TextAreaAff.Text(), TextAreaAff.SelectionStart());
    TextAreaAff.Select(line.start, line.length);
}
