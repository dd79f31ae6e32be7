#include "app/App.h"
#include "mainwindow/Colouring.h"
#include "mainwindow/ReportSeries.h"
#include "mainwindow/WinMain.h"
#include "support/Sounds.h"
#include "toolkit/Dialogs.h"

namespace {

String MarkMessage(const BadMark& mark)
{
    return U"Error ! Please contact the authors.\nAffArea :\njNbre = " + ToText(mark.jNbre) + U"\nkNbre = " +
           ToText(mark.kNbre);
}

} // namespace

String* WinMain::TextOfRow(int row)
{
    switch (row) {
    case rowModel:
        return &texts_.TextModel;
    case rowSource:
        return &texts_.TextSrcSpack;
    case rowDest:
        return &texts_.TextDestSpack;
    default:
        return nullptr;
    }
}

void WinMain::PopMenuAff_SelectionChanged()
{
    if (String* edited = TextOfRow(static_cast<int>(MemPopMaff)))
        *edited = TextAreaAff.Text();
    else
        MessageBox(U"Error ! Please contact the authors.\nMemPopMaff, Which Selection ?");
    AffArea();
    // Last: what was edited belongs to the row that was on screen.
    MemPopMaff = PopMenuAff.SelectedRowIndex();
    TextAreaAff.SetAccessibleName(PopMenuAff.SelectedRowText());
}

void WinMain::AffArea() { ShowRow(&DesktopTextArea::SetStyledText); }

void WinMain::ShowRow(Shower shower)
{
    switch (PopMenuAff.SelectedRowIndex()) {
    case rowModel:
        return ShowText(texts_.TextModel, texts_.CoulModSpack, shower);
    case rowSource:
        return ShowText(texts_.TextSrcSpack, {}, shower);
    case rowDest:
        return ShowText(texts_.TextDestSpack, texts_.CoulDestSpack, shower);
    default:
        TextAreaAff.SetText({});
        Fncts::BeepNbT(3);
        MessageBox(U"Error ! Please contact the authors.\nPopMenuAff, Which Selection ?");
    }
}

void WinMain::ShowText(StringView text, std::span<const Int64> marks, Shower shower)
{
    const Colours colours = ColourText(text, marks);
    (TextAreaAff.*shower)(text, colours.spans);
    ReportSeries messages([](const String& message, const String&) {
        Fncts::BeepNbT(3);
        MessageBox(message);
    });
    for (const BadMark& mark : colours.badMarks)
        messages.Add(MarkMessage(mark));
    messages.Finish();
}
