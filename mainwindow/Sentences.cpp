#include "mainwindow/Sentences.h"

#include "localisation/Localisation.h"
#include "toolkit/URLConnection.h"

#include <algorithm>

using namespace Localisation;

String Counted(Int64 number, StringView forms)
{
    return ToText(number) + U" " + String(NthField(forms, U"|", number == 1 ? 1 : 2));
}

String Unmatched() { return String(NthField(Nb_SansEquiv(), U"|", 1)); }

String StatusSentence(Int64 line, bool marked, const LineCounts& counts)
{
    return Filled(Dit_Ligne(), {ToText(line)}) + (marked ? U", " + Unmatched() : String()) + U" · " +
           Join({{Counted(counts.lines, Nb_Lignes()), Counted(counts.enabled, Nb_Activees()),
                  Counted(counts.disabled, Nb_Desactivees()), Counted(counts.marked, Nb_SansEquiv())}},
                U", ");
}

String OnOneLine(StringView section)
{
    constexpr StringView itemMark = U"\n - ";
    constexpr Int64 mostItems = 3;
    const Int64 items = CountFields(section, itemMark) - 1;
    String line(NthField(section, itemMark, 1));
    for (Int64 i = 1; i <= std::min(items, mostItems); ++i)
        line.append(i == 1 ? U" " : U", ").append(NthField(section, itemMark, i + 1));
    return items > mostItems ? line + U"…" : line;
}

String WhyNoAnswer(const RuntimeException& error)
{
    switch (error.ErrorNumber) {
    case URLConnection::BrokeOff:
        return Err_ReponseCoupee();
    case URLConnection::TooLate:
        return Err_PasDeReponse();
    case URLConnection::TooLong:
        return Err_ReponseTropLongue();
    default:
        return error.Message;
    }
}
