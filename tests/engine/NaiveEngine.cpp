#include "engine/Sections.h"
#include "tests/engine/RunLaws.h"
#include "toolkit/core/FolderItem.h"

namespace {

using Lines = std::vector<String>;

/// How many lines are that one, whatever their case.
Int64 Count(const Lines& lines, StringView line)
{
    return std::ranges::count_if(lines, [&](StringView other) { return SameText(line, other); });
}

Lines Cut(StringView text)
{
    const std::vector<StringView> views = Split(text, U"\n");
    Lines lines(views.begin(), views.end());
    while (!lines.empty() && lines.back().empty())
        lines.pop_back();
    return lines;
}

void Sort(Lines& lines)
{
    std::ranges::stable_sort(lines, {}, [](const String& line) { return FoldCase(line); });
}

String NameIn(StringView line)
{
    for (; !line.empty(); line.remove_prefix(1))
        for (const StringView prefix : {U"SCENERY_PACK ", U"SCENERY_PACK_DISABLED "})
            if (const String beginning = String(prefix) + U"Custom Scenery/"; BeginsWith(line, beginning))
                return CountFields(line, U"/") > 2 ? String(NthField(line, U"/", 2)) : String();
    return {};
}

Lines Reduce(const Lines& lines)
{
    Lines names;
    for (const String& line : lines)
        if (String name = NameIn(line); !name.empty()) names.push_back(std::move(name));
    return names;
}

Int64 OffsetOf(const Lines& lines, std::size_t index)
{
    Int64 offset = 0;
    for (std::size_t k = 0; k < index; ++k)
        offset += std::ssize(lines[k]) + 1;
    return offset;
}

String CheckModel(const Lines& model)
{
    Lines met, seconds;
    for (const String& name : Reduce(model)) {
        met.push_back(name);
        if (Count(met, name) == 2) seconds.push_back(name);
    }
    Sort(seconds);
    String report;
    AppendSection(report, Localisation::Txt_ScenPlusDuneFois(), seconds);
    return report;
}

String CheckFolders(const Lines& sorted, const Lines& folders)
{
    Lines unlisted = folders, missing, otherCase;
    for (const String& name : Reduce(sorted)) {
        const auto isNamedSo = [form = CanonicalForm(name)](StringView folder) { return SameText(folder, form); };
        const auto listed = std::ranges::find_if(unlisted, isNamedSo);
        if (listed == unlisted.end()) {
            missing.push_back(name);
            continue;
        }
        unlisted.erase(listed);
        if (std::ranges::count(folders, CanonicalForm(name)) == 0)
            otherCase.push_back(name + U" (" + *std::ranges::find_if(folders, isNamedSo) + U")");
    }
    String report;
    AppendSection(report, Localisation::Txt_DossDsDossPasDsScen(), unlisted);
    AppendSection(report, Localisation::Txt_ScenDsScenIniPasDsDoss(), missing);
    AppendSection(report, Localisation::Txt_ScenAutreCasse(), otherCase);
    return report;
}

/// The lines that aren't blank and stand more often in `lines` than in `others`.
Lines MoreIn(const Lines& lines, const Lines& others)
{
    Lines more;
    for (const String& line : lines)
        if (!line.empty() && Count(more, line) == 0 && Count(lines, line) > Count(others, line)) more.push_back(line);
    return more;
}

String Explain(const Lines& source, const Lines& destination)
{
    String explanation;
    AppendSection(explanation, Localisation::Txt_PlusDsFichier(), MoreIn(source, destination));
    AppendSection(explanation, Localisation::Txt_PlusDsResultat(), MoreIn(destination, source));
    const auto before = std::ranges::count(source, String()), after = std::ranges::count(destination, String());
    if (before == after) return explanation;
    if (!explanation.empty()) explanation += U"\n \n";
    return explanation + Localisation::Filled(Localisation::Txt_LignesVides(), {ToText(before), ToText(after)});
}

String TwinIn(StringView line)
{
    if (BeginsWith(line, U"SCENERY_PACK_DISABLED ")) return U"SCENERY_PACK " + String(line.substr(22));
    if (BeginsWith(line, U"SCENERY_PACK ")) return U"SCENERY_PACK_DISABLED " + String(line.substr(13));
    return {};
}

Lines PlaceModel(const Lines& model, const Lines& source, Outcome& outcome)
{
    Lines destination = {U"I", U"1000 version", U"SCENERY"};
    for (std::size_t i = 3; i < model.size(); ++i) {
        const String& line = model[i];
        if (line.empty()) {
            destination.emplace_back();
            continue;
        }
        const std::size_t before = outcome.reports.size();
        const String twin = TwinIn(line);
        const Int64 count = Count(source, line), twinCount = twin.empty() ? 0 : Count(source, twin);
        if (count > 1) outcome.reports.emplace_back(Localisation::Txt_ProbLignPresDxFois(), line);
        if (twinCount > 1) outcome.reports.emplace_back(Localisation::Txt_ProbLignPresDxFois(), twin);
        if (count > 0 && twinCount > 0)
            outcome.reports.emplace_back(Localisation::Txt_ProbLignEquiv(), String(line).append(U"\n").append(twin));
        if (outcome.reports.size() > before) continue;
        if (count + twinCount > 0)
            destination.push_back(count > 0 ? line : twin);
        else
            outcome.modelMarks.push_back(OffsetOf(model, i));
    }
    return destination;
}

void AddTheRest(Lines& destination, const Lines& source, Outcome& outcome)
{
    for (std::size_t j = 3; j < source.size(); ++j) {
        if (source[j].empty() || Count(destination, source[j]) > 0) continue;
        const std::size_t place = std::min(j, destination.size());
        outcome.resultMarks.push_back(OffsetOf(destination, place));
        destination.insert(destination.begin() + static_cast<std::ptrdiff_t>(place), source[j]);
    }
}

} // namespace

Outcome RunNaively(StringView modelText, StringView sourceText, const std::vector<String>& folders)
{
    Outcome outcome;
    const Lines model = Cut(modelText);
    if (const String refusal = CheckModel(model); !refusal.empty()) return {U"### Error ###", {}, {}, {{refusal, {}}}};
    Lines source = Cut(sourceText);
    Lines destination = PlaceModel(model, source, outcome);
    AddTheRest(destination, source, outcome);
    for (const String& line : destination)
        outcome.text += line + U"\n";
    const String explanation = Explain(source, destination);
    Sort(source);
    Sort(destination);
    if (!std::ranges::equal(source, destination, SameText)) {
        outcome.reports.emplace_back(Localisation::Txt_ProblemCompInitFinal(), explanation);
    } else if (const String report = CheckFolders(destination, folders); !report.empty()) {
        outcome.reports.emplace_back(report, U"");
    }
    return outcome;
}
