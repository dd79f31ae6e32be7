#include "localisation/Localisation.h"
#include "mainwindow/Sentences.h"
#include "mainwindow/WinMain.h"
#include "support/Diagnostics.h"
#include "support/DialogHelpers.h"
#include "support/Sounds.h"

#include <algorithm>

void WinMain::PopMenuAff_SelectionChanged()
{
    AffArea();
    // A view picked by the mouse is to be read or edited; the Tab key leads to the popup, and there the arrow keys on.
    if (Focus() != &PopMenuAff) TextAreaAff.SetFocus();
}

void WinMain::AffArea()
{
    const int row = PopMenuAff.SelectedRowIndex();
    if (row < rowModel || row > rowDest) {
        Fncts::BeepNbT(3);
        return TellAuthorsShortly(U"PopMenuAff, Which Selection ?");
    }
    TextAreaAff.SetDocument(Document(row));
    TextAreaAff.SetAccessibleName(PopMenuAff.SelectedRowText());
    ShowStatus();
}

void WinMain::ShowStatus()
{
    const TextDocument& shown = Document(PopMenuAff.SelectedRowIndex());
    SetStatus(StatusSentence(TextAreaAff.CaretLine() + 1, {.lines = shown.LineCount(),
                                                           .enabled = shown.LinesIn(Colouring::EnabledKeyword),
                                                           .disabled = shown.LinesIn(Colouring::DisabledKeyword),
                                                           .marked = shown.MarkedLines()}));
}

void WinMain::ShowRun(const SceneryTexts& texts)
{
    Document(rowModel).ReplaceText(texts.TextModel, texts.CoulModSpack);
    Document(rowSource).ReplaceText(texts.TextSrcSpack);
    Document(rowDest).ReplaceText(texts.TextDestSpack, texts.CoulDestSpack);
    for (TextDocument& document : documents_)
        document.SetUnmodified();
}

bool WinMain::Forget(std::initializer_list<int> rows)
{
    if (!AsksToLose(rows)) return false;
    for (const int row : rows)
        Document(row).SetText({});
    return true;
}

bool WinMain::AsksToLose(std::initializer_list<int> rows)
{
    using namespace Localisation;
    if (std::ranges::none_of(rows, [this](int row) { return Document(row).Modified(); })) return true;
    return AsksToLose(Txt_TexteModifie(), Btn_Cont());
}

void WinMain::ReturnFocus(const DesktopUIControl& button)
{
    if (Focus() != &button) TextAreaAff.SetFocus();
}
