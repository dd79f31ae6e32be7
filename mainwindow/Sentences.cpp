#include "mainwindow/Sentences.h"

#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "support/TextHelpers.h"

using namespace Localisation;

String Counted(Int64 number, StringView forms)
{
    return ToText(number) + U" " + String(NthField(forms, U"|", number == 1 ? 1 : 2));
}

String StatusSentence(Int64 line, const LineCounts& counts)
{
    return Fncts::Filled(Dit_Ligne(), {ToText(line)}) + U" · " +
           Join({{Counted(counts.lines, Nb_Lignes()), Counted(counts.enabled, Nb_Activees()),
                  Counted(counts.disabled, Nb_Desactivees()), Counted(counts.marked, Nb_SansEquiv())}},
                U", ");
}

String ReasonOfRefusal(StringView raw)
{
    if (raw.empty()) return Dit_Vide();
    if (raw.starts_with(U'\uFEFF')) return Dit_Bom();
    if (BeginsWith(raw, ErrorMarker)) return String(NthField(Middle(raw, std::ssize(ErrorMarker)), U"\n", 1));
    const bool differsInLineEnds = BeginsWith(ReplaceAll(Left(raw, 2 * LgTxtDebSpack), U"\r\n", U"\n"), TxtDebSpack);
    return differsInLineEnds ? Dit_FinsWindows() : Dit_SansEntete();
}
