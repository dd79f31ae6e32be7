#include "mainwindow/Searching.h"
#include "mainwindow/WinMain.h"
#include "support/Fncts.h"
#include "support/Sounds.h"

namespace {

/// A match stands a few lines below the top, so that what comes before it is seen too.
constexpr Int64 linesAbove = 5;

} // namespace

void WinMain::PushButtCherch_Pressed()
{
    if (!Fncts::DrapMenu) return;
    ReturnFocus(PushButtCherch);
    const String word = TextFieldCherch.Text();
    if (word.empty()) return Fncts::BeepNbT(1);
    const SearchResult result =
        SearchNext(TextAreaAff.Text(), word, {TextAreaAff.SelectionStart(), TextAreaAff.SelectionLength()});
    if (result.outcome == SearchOutcome::NotFound) {
        TextAreaAff.Select(0, 0);
        TextAreaAff.ScrollTo(0, 0);
        return Fncts::PlayT(Fncts::_x_Glass_t::Glass_t());
    }
    Fncts::PlayT(result.outcome == SearchOutcome::SameMatch ? Fncts::_x_Whit::Whit()
                                                            : Fncts::_x_Agrafeuse_t::Agrafeuse_t());
    TextAreaAff.SetFocus();
    TextAreaAff.Select(result.selection.start, result.selection.length);
    TextAreaAff.ScrollTo(result.selection.start, linesAbove);
}

/// The focus comes back to the field: the next Enter searches on. In the text it would replace the match by a line end.
void WinMain::TextFieldCherch_Entered()
{
    PushButtCherch_Pressed();
    TextFieldCherch.SetFocus();
}

void WinMain::PushButtInitCherch_Pressed() { TextFieldCherch.SetText({}); }
