#include "localisation/Localisation.h"
#include "mainwindow/Searching.h"
#include "mainwindow/WinMain.h"
#include "support/Fncts.h"
#include "support/Sounds.h"
#include "support/Status.h"
#include "toolkit/Desktop.h"

using namespace Localisation;

void WinMain::BindSearch()
{
    PushButtCherch.Pressed = [this] { PushButtCherch_Pressed(); };
    PushButtInitCherch.Pressed = [this] { PushButtInitCherch_Pressed(); };
    TextFieldCherch.Entered = [this] { TextFieldCherch_Entered(); };
    TextFieldCherch.Escaped = [this] { TextAreaAff.SetFocus(); };
    FindRequested = [this] {
        TextFieldCherch.SetFocus();
        TextFieldCherch.SelectAll();
    };
}

void WinMain::PushButtCherch_Pressed() { Search(SearchWay::Button); }

void WinMain::Search(SearchWay way)
{
    if (!Fncts::DrapMenu) return;
    ReturnFocus(PushButtCherch);
    const String word = TextFieldCherch.Text(), text = TextAreaAff.Text();
    if (word.empty()) return Fncts::Refuser(Dit_RienChercher());
    const Selection selection{TextAreaAff.SelectionStart(), TextAreaAff.SelectionLength()};
    const bool forward = way != SearchWay::Previous;
    const SearchResult result =
        way == SearchWay::Button ? SearchNext(text, word, selection) : SearchBeyond(text, word, selection, forward);
    if (result.outcome == SearchOutcome::NotFound) {
        if (way == SearchWay::Button) ShowInText({0, 0}, 0);
        Fncts::Dire(Filled(Dit_Introuvable(), {word}));
        return Fncts::PlayT(Fncts::_x_Glass_t::Glass_t());
    }
    const bool isSame = result.outcome == SearchOutcome::SameMatch;
    Fncts::PlayT(isSame ? Fncts::_x_Whit::Whit() : Fncts::_x_Agrafeuse_t::Agrafeuse_t());
    if (isSame)
        Fncts::Dire(Filled(Dit_SeulTrouve(), {word}));
    else
        Fncts::Dire(!result.wraps ? String() : forward ? Dit_RepriseDebut() : Dit_RepriseFin());
    TextAreaAff.SetFocus();
    ShowInText(result.selection, linesAbove);
}

void WinMain::ShowInText(const Selection& selection, Int64 lines)
{
    TextAreaAff.Select(selection.start, selection.length);
    TextAreaAff.ScrollTo(selection.start, lines);
}

/// The focus comes back to the field: the next Enter searches on. In the text it would replace the match by a line end.
void WinMain::TextFieldCherch_Entered()
{
    Search(Keyboard::AsyncShiftKey() ? SearchWay::Previous : SearchWay::Button);
    TextFieldCherch.SetFocus();
}

void WinMain::PushButtInitCherch_Pressed() { TextFieldCherch.SetText({}); }
