#include "localisation/Localisation.h"
#include "mainwindow/Sentences.h"
#include "mainwindow/WinMain.h"
#include "support/Diagnostics.h"
#include "support/Sounds.h"

#include <algorithm>
#include <utility>

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
    const Int64 line = std::min(TextAreaAff.CaretLine() + 1, std::max(shown.LineCount(), Int64{1}));
    const bool marked = TextAreaAff.CaretLineShowsMark();
    SetStatus(StatusSentence(line, marked,
                             {.lines = shown.LineCount(),
                              .enabled = shown.LinesIn(Colouring::EnabledKeyword),
                              .disabled = shown.LinesIn(Colouring::DisabledKeyword),
                              .marked = shown.MarkedLines()}));
    // The colour alone tells nothing to the ear.
    const std::pair place(&shown, line);
    if (std::exchange(placeTold_, place) != place) SayUnseen(marked ? Unmatched() : String());
}

void WinMain::ShowRun(const SceneryTexts& texts, std::initializer_list<int> rows, bool modelIsCleaned,
                      bool sourceIsCleaned)
{
    const std::tuple<StringView, std::span<const Int64>, bool> shown[] = {
        {texts.TextModel, texts.CoulModSpack, modelIsCleaned},
        {texts.TextSrcSpack, {}, sourceIsCleaned},
        {texts.TextDestSpack, texts.CoulDestSpack, modelIsCleaned || sourceIsCleaned}};
    for (const int row : rows) {
        const auto& [text, marks, isCleaned] = shown[row];
        Document(row).ReplaceText(text, marks, {isCleaned, runs_});
        Document(row).SetUnmodified();
    }
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
