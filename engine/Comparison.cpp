#include "engine/Comparison.h"

#include "engine/ManyTexts.h"
#include "localisation/Localisation.h"

#include <iterator>

namespace {

using Lines = std::span<const SceneryLine>;

/// A title with the lines below it that aren't blank and whose surplus is positive; "" when there are none.
String Section(StringView title, Lines lines, std::span<const std::size_t> numbers, std::vector<Int64> surplus)
{
    String section;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        Int64& more = surplus[numbers[i]];
        if (more <= 0 || lines[i].text.empty()) continue;
        more = 0;
        if (section.empty()) section = title;
        section.append(EndOfLine::Native).append(U" - ").append(lines[i].text);
    }
    return section;
}

String TellBlankLines(std::ptrdiff_t inFile, std::ptrdiff_t inResult)
{
    if (inFile == inResult) return {};
    const String text = Localisation::Txt_LignesVides();
    const std::vector<StringView> pieces = Split(text, U"¿%");
    return String(pieces[0]).append(ToText(inFile)).append(pieces[1]).append(ToText(inResult)).append(pieces[2]);
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
    for (const String& section : {Section(Localisation::Txt_PlusDsFichier(), file, ofFile, moreInFile),
                                  Section(Localisation::Txt_PlusDsResultat(), result, ofResult, moreInResult),
                                  TellBlankLines(std::ranges::count(file, StringView(), &SceneryLine::text),
                                                 std::ranges::count(result, StringView(), &SceneryLine::text))}) {
        if (section.empty()) continue;
        if (!explanation.empty()) explanation.append(EndOfLine::Native).append(U" ").append(EndOfLine::Native);
        explanation.append(section);
    }
    return explanation;
}
