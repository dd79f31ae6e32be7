#include "engine/Comparison.h"

#include "engine/ManyTexts.h"
#include "engine/Sections.h"
#include "localisation/Localisation.h"

#include <iterator>

namespace {

using Lines = std::span<const SceneryLine>;

/// The lines that aren't blank and whose surplus is positive, once each.
std::vector<String> Surplus(Lines lines, std::span<const std::size_t> numbers, std::vector<Int64> surplus)
{
    std::vector<String> found;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        Int64& more = surplus[numbers[i]];
        if (more > 0 && !lines[i].text.empty()) found.emplace_back(lines[i].text);
        more = 0;
    }
    return found;
}

} // namespace

String ExplainDifferences(Lines file, Lines result)
{
    std::vector<StringView> texts;
    for (const Lines lines : {file, result})
        std::ranges::transform(lines, std::back_inserter(texts), &SceneryLine::text);
    const std::vector<std::size_t> numbers = TextNumbers(texts);
    const std::span ofFile = std::span(numbers).first(file.size()), ofResult = std::span(numbers).last(result.size());
    std::vector<Int64> moreInFile(texts.size()), moreInResult(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const Int64 change = i < file.size() ? 1 : -1;
        moreInFile[numbers[i]] += change;
        moreInResult[numbers[i]] -= change;
    }
    String explanation;
    AppendSection(explanation, Localisation::Txt_PlusDsFichier(), Surplus(file, ofFile, moreInFile));
    AppendSection(explanation, Localisation::Txt_PlusDsResultat(), Surplus(result, ofResult, moreInResult));
    const auto blanksOf = [](Lines lines) {
        return ToText(std::ranges::count(lines, StringView(), &SceneryLine::text));
    };
    if (blanksOf(file) != blanksOf(result)) {
        if (!explanation.empty()) explanation.append(EndOfLine::Native).append(U" ").append(EndOfLine::Native);
        explanation.append(Localisation::Filled(Localisation::Txt_LignesVides(), {blanksOf(file), blanksOf(result)}));
    }
    return explanation;
}
