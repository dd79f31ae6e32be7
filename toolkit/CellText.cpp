#include "toolkit/CellText.h"

namespace {

constexpr StringView ends = U"\t\n";

/// The cell in quotes at the start of the text, as it stands there; "" when there is none.
StringView QuotedCell(StringView text)
{
    if (!text.starts_with(U'"')) return {};
    std::size_t end = 1;
    while ((end = text.find(U'"', end)) != text.npos && text.substr(end).starts_with(U"\"\""))
        end += 2;
    const bool isWhole = end != text.npos && (end + 1 == text.size() || ends.find(text[end + 1]) != ends.npos);
    return isWhole ? text.substr(0, end + 1) : StringView();
}

String Unquoted(StringView quoted)
{
    String cell = ReplaceAll(quoted.substr(1, quoted.size() - 2), U"\"\"", U"\"");
    cell.erase(cell.find_last_not_of(U'\n') + 1);
    return ReplaceAll(ReplaceAll(cell, U"\n", U" "), U"\t", U" ");
}

} // namespace

std::vector<CellRow> RowsOf(StringView text)
{
    const String lined = ReplaceLineEndings(text, U"\n");
    StringView rest = lined;
    if (rest.ends_with(U'\n')) rest.remove_suffix(1);
    if (rest.find_first_of(ends) == rest.npos) return {{String(rest)}};
    std::vector<CellRow> rows(1);
    while (true) {
        const StringView quoted = QuotedCell(rest);
        const StringView cell = quoted.empty() ? rest.substr(0, rest.find_first_of(ends)) : quoted;
        rows.back().push_back(quoted.empty() ? String(cell) : Unquoted(quoted));
        if (cell.size() == rest.size()) return rows;
        if (rest[cell.size()] == U'\n') rows.emplace_back();
        rest.remove_prefix(cell.size() + 1);
    }
}

String TextOfRow(const CellRow& row)
{
    String text;
    for (const String& cell : row)
        text += cell.starts_with(U'"') ? U'"' + ReplaceAll(cell, U"\"", U"\"\"") + U"\"\t" : cell + U'\t';
    if (!text.empty()) text.pop_back();
    return text + U'\n';
}
