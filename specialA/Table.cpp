#include "app/App.h"
#include "localisation/Localisation.h"
#include "specialA/WinSpecA.h"
#include "support/Sounds.h"
#include "support/Status.h"
#include "support/TextHelpers.h"

#include <algorithm>
#include <functional>
#include <numeric>

using namespace Localisation;

namespace {

constexpr std::size_t mostRows = 1000;
/// The file of the settings keeps a column in a line, and the longest line that it reads has four bytes for each.
constexpr std::size_t mostCharacters = 2'000'000;

/// The name of a file may hold what parts the elements of a kept list, and the lines of the file that keeps it.
String OneElement(StringView text) { return ReplaceAll(ReplaceLineEndings(text, U" "), U"\t", U" "); }

/// The three names and the blank line that `PushButtCopiList` puts above the rows.
bool BeginsWithHeading(const std::vector<CellRow>& rows)
{
    return rows.size() >= 2 && rows[0].size() == 3 && rows[1] == CellRow{U""};
}

} // namespace

void WinSpecA::ShowTable()
{
    App& app = App::Current();
    const auto columns = {&app.TabSpecAorg, &app.TabSpecAdest1, &app.TabSpecAdest2};
    std::size_t longest = 1;
    for (const auto* column : columns)
        longest = std::max(longest, column->size());
    for (auto* column : columns)
        column->resize(longest);
    TextFieldOrg.SetText(app.TabSpecAorg.front());
    TextFieldDest1.SetText(app.TabSpecAdest1.front());
    TextFieldDest2.SetText(app.TabSpecAdest2.front());
    std::vector<CellRow> rows;
    for (std::size_t i = 1; i < longest; ++i)
        rows.push_back({app.TabSpecAorg[i], app.TabSpecAdest1[i], app.TabSpecAdest2[i]});
    ListboxRR.SetRows(rows);
}

Int16 WinSpecA::FaireTab()
{
    App& app = App::Current();
    app.TabSpecAorg = {OneElement(TextFieldOrg.Text())};
    app.TabSpecAdest1 = {OneElement(TextFieldDest1.Text())};
    app.TabSpecAdest2 = {OneElement(TextFieldDest2.Text())};
    for (const CellRow& row : ListboxRR.Rows()) {
        app.TabSpecAorg.push_back(row[0]);
        app.TabSpecAdest1.push_back(row[1]);
        app.TabSpecAdest2.push_back(row[2]);
    }
    return static_cast<Int16>(ListboxRR.Rows().size());
}

bool WinSpecA::ListboxRR_Accepts(const std::vector<CellRow>& rows)
{
    // What was read with more may be made smaller.
    const std::vector<CellRow>& present = ListboxRR.Rows();
    if (rows.size() > std::max(mostRows, present.size())) return Fncts::Refuser(Dit_TropLignes()), false;
    for (std::size_t column = 0; column < 3; ++column) {
        const auto characters = [column](const std::vector<CellRow>& table) {
            return std::transform_reduce(table.begin(), table.end(), std::size_t{0}, std::plus(),
                                         [column](const CellRow& row) { return row[column].size(); });
        };
        if (characters(rows) > std::max(mostCharacters, characters(present)))
            return Fncts::Refuser(Dit_TropLong()), false;
    }
    return true;
}

void WinSpecA::PushButtAdd_Pressed()
{
    const int count = static_cast<int>(ListboxRR.Rows().size());
    if (ListboxRR.InsertRows(count, {{}})) ListboxRR.EditCell(count, 0);
}

void WinSpecA::PushButtSupp_Pressed()
{
    const std::vector<CellRow>& rows = ListboxRR.Rows();
    if (const int selected = ListboxRR.SelectedRowIndex(); selected >= 0) return ListboxRR.RemoveRowAt(selected);
    if (!rows.empty() && rows.back() == CellRow(3)) return ListboxRR.RemoveRowAt(static_cast<int>(rows.size()) - 1);
    Fncts::Refuser(Dit_RienEnlever());
}

void WinSpecA::PushButtCopiList_Pressed()
{
    String text = TextOfRow({TextFieldOrg.Text(), TextFieldDest1.Text(), TextFieldDest2.Text()}) + U'\n';
    for (const CellRow& row : ListboxRR.Rows())
        text += TextOfRow(row);
    Fncts::PlayT(Fncts::_x_Bip::Bip());
    Fncts::PressPapTxt(text);
}

void WinSpecA::ListboxRR_RowsPasted(std::vector<CellRow> rows)
{
    if (BeginsWithHeading(rows)) rows.erase(rows.begin(), rows.begin() + 2);
    const std::size_t room = mostRows - std::min(mostRows, ListboxRR.Rows().size());
    if (std::ranges::any_of(rows, [](const CellRow& row) { return row.size() > 3; }))
        Fncts::Refuser(Dit_TropColonnes());
    if (rows.size() > room) {
        rows.resize(room);
        Fncts::Refuser(Dit_TropLignes());
    }
    const int selected = ListboxRR.SelectedRowIndex();
    if (!rows.empty())
        ListboxRR.InsertRows(selected >= 0 ? selected + 1 : static_cast<int>(ListboxRR.Rows().size()), rows);
}
