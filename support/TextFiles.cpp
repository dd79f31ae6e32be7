#include "support/TextFiles.h"

#include "localisation/Localisation.h"
#include "support/FileHelpers.h"
#include "support/TextHelpers.h"
#include "toolkit/core/TextInputStream.h"
#include "toolkit/core/TextOutputStream.h"

#include <algorithm>

namespace {

using namespace std::string_view_literals;

bool IsAscii(std::string_view bytes)
{
    return std::ranges::none_of(bytes, [](char byte) { return (byte & 0x80) != 0; });
}

/// Counts the lines that lose characters when all that isn't ASCII is taken out.
void CountCleanedLines(Fncts::Reading& reading, std::string_view data)
{
    for (Int64 number = 1; !data.empty(); ++number) {
        const std::string_view line = data.substr(0, data.find('\n'));
        data.remove_prefix(std::min(line.size() + 1, data.size()));
        if (IsAscii(line) || reading.cleanedLines++ > 0) continue;
        reading.firstCleaned = number;
        reading.firstCleanedLine = Fncts::DefAppEncod.Decode(line);
    }
}

String FormOf(std::string_view data)
{
    const bool isWide = data.starts_with("\xFF\xFE"sv) || data.starts_with("\xFE\xFF"sv) ||
                        (data.size() > 1 && (data[0] == '\0') != (data[1] == '\0'));
    if (isWide) return U"UTF-16";
    std::vector<StringView> marks;
    if (data.starts_with("\xEF\xBB\xBF"sv)) marks.push_back(U"BOM");
    bool hasReturn = false, hasBoth = false;
    for (std::size_t at = data.find('\r'); at != data.npos; at = data.find('\r', at + 1))
        (data.substr(at + 1).starts_with('\n') ? hasBoth : hasReturn) = true;
    if (hasBoth) marks.push_back(U"CR LF");
    if (hasReturn) marks.push_back(U"CR");
    return Join(marks, U", ");
}

} // namespace

namespace Fncts {

Reading TextOfBytes(const Bytes& data)
{
    Reading reading{.form = FormOf(data), .fingerprint = std::hash<Bytes>()(data)};
    if (DefAppEncod.IsValidData(data)) {
        reading.text = DefAppEncod.Decode(data);
    } else {
        CountCleanedLines(reading, data);
        reading.text = DefAppEncod.Decode(NettoiBadEncod(data, DefAppEncod));
    }
    return reading;
}

Reading LireFichier(const std::optional<FolderItem>& fichier)
{
    if (!PasNil_Existe_Alias(fichier, true)) return {};
    try {
        return TextOfBytes(TextInputStream::Open(*fichier).ReadAll());
    } catch (const std::exception& error) {
        return {.failure = DefAppEncod.Decode(error.what())};
    }
}

String CleaningReport(const Reading& reading, StringView name)
{
    constexpr Int64 longest = 200;
    return Localisation::Filled(
        Localisation::Txt_OctetsRetires(),
        {name, ToText(reading.cleanedLines), ToText(reading.firstCleaned), Left(reading.firstCleanedLine, longest)});
}

Outcome SauvFichier(const FolderItem& f, StringView text)
{
    try {
        TextOutputStream stream(f);
        stream.Write(DefAppEncod.Encode(text));
        stream.Close();
        return {};
    } catch (const std::exception& error) {
        return {DefAppEncod.Decode(error.what())};
    }
}

} // namespace Fncts
