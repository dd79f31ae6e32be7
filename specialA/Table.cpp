#include "app/App.h"
#include "specialA/WinSpecA.h"
#include "support/Sounds.h"
#include "support/TextHelpers.h"

#include <algorithm>

namespace {

constexpr StringView tab = U"\t";

/// What a screen reader sets, or the name of a file, may hold what parts the elements of a kept list, and the lines of
/// the file that keeps it.
String OneElement(StringView text) { return ReplaceAll(ReplaceLineEndings(text, U" "), tab, U" "); }

} // namespace

void WinSpecA::ShowTable()
{
    App& app = App::Current();
    std::size_t longest = 1;
    for (const auto* list : {&app.TabSpecAorg, &app.TabSpecAdest1, &app.TabSpecAdest2})
        longest = std::max(longest, list->size());
    for (auto* list : {&app.TabSpecAorg, &app.TabSpecAdest1, &app.TabSpecAdest2})
        list->resize(longest);
    TextFieldOrg.SetText(app.TabSpecAorg.front());
    TextFieldDest1.SetText(app.TabSpecAdest1.front());
    TextFieldDest2.SetText(app.TabSpecAdest2.front());
    for (std::size_t i = 1; i < longest; ++i)
        ListboxRR.AddRow({app.TabSpecAorg[i], app.TabSpecAdest1[i], app.TabSpecAdest2[i]});
}

Int16 WinSpecA::FaireTab()
{
    App& app = App::Current();
    app.TabSpecAorg = {OneElement(TextFieldOrg.Text())};
    app.TabSpecAdest1 = {OneElement(TextFieldDest1.Text())};
    app.TabSpecAdest2 = {OneElement(TextFieldDest2.Text())};
    for (int row = 0; row <= ListboxRR.LastRowIndex(); ++row) {
        app.TabSpecAorg.push_back(OneElement(ListboxRR.CellTextAt(row, 0)));
        app.TabSpecAdest1.push_back(OneElement(ListboxRR.CellTextAt(row, 1)));
        app.TabSpecAdest2.push_back(OneElement(ListboxRR.CellTextAt(row, 2)));
    }
    return static_cast<Int16>(ListboxRR.LastRowIndex() + 1);
}

void WinSpecA::PushButtAdd_Pressed()
{
    if (ListboxRR.LastRowIndex() + 1 >= MostRows) return Fncts::BeepNbT(1);
    ListboxRR.AddRow({});
}

void WinSpecA::PushButtSupp_Pressed()
{
    const int last = ListboxRR.LastRowIndex(), selected = ListboxRR.SelectedRowIndex();
    if (selected >= 0) return ListboxRR.RemoveRowAt(selected);
    if (last >= 0 && Line(last) == U"\t\t") return ListboxRR.RemoveRowAt(last);
    Fncts::BeepNbT(1);
}

String WinSpecA::Heading() const
{
    return TextFieldOrg.Text() + U"\t" + TextFieldDest1.Text() + U"\t" + TextFieldDest2.Text();
}

String WinSpecA::Line(int row) const
{
    return ListboxRR.CellTextAt(row, 0) + U"\t" + ListboxRR.CellTextAt(row, 1) + U"\t" + ListboxRR.CellTextAt(row, 2);
}

void WinSpecA::PushButtCopiList_Pressed()
{
    String text = Heading() + U"\n\n";
    for (int row = 0; row <= ListboxRR.LastRowIndex(); ++row)
        text += Line(row) + U"\n";
    Fncts::PlayT(Fncts::_x_Bip::Bip());
    Fncts::PressPapTxt(text);
}

void WinSpecA::ListboxRR_TextPasted(const String& text)
{
    const String lined = ReplaceLineEndings(text, EndOfLine::UNIX);
    std::vector<StringView> lines = Split(lined, EndOfLine::UNIX);
    if (lines.back().empty()) lines.pop_back();
    if (lines.size() >= 2 && lines[0] == Heading() && lines[1].empty()) lines.erase(lines.begin(), lines.begin() + 2);
    if (std::ranges::any_of(lines, [](StringView line) { return CountFields(line, tab) > 3; })) Fncts::BeepNbT(1);

    const int selected = ListboxRR.SelectedRowIndex();
    int before = selected >= 0 ? selected + 1 : ListboxRR.LastRowIndex() + 1;
    for (const StringView line : lines) {
        if (ListboxRR.LastRowIndex() + 1 >= MostRows) return Fncts::BeepNbT(1);
        ListboxRR.AddRowAt(
            before++, {String(NthField(line, tab, 1)), String(NthField(line, tab, 2)), String(NthField(line, tab, 3))});
    }
}
