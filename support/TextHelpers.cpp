#include "support/TextHelpers.h"

#include "support/Diagnostics.h"
#include "support/Sounds.h"
#include "toolkit/Desktop.h"

#include <algorithm>
#include <iterator>

namespace Fncts {

String FracTexte(StringView text, Int16 part)
{
    constexpr StringView placeholder = U"¿%";
    if (part >= 1 && part <= CountFields(text, placeholder)) return String(NthField(text, placeholder, part));
    TellAuthorsShortly(Join({{U"FracTexte. Partie = " + ToText(part), U" ", text}}, EndOfLine::Native));
    return {};
}

Bytes NettoiBadEncod(std::string_view text, const TextEncoding& encoding)
{
    Bytes kept;
    kept.reserve(text.size());
    std::ranges::copy_if(text, std::back_inserter(kept), [](char byte) { return (byte & 0x80) == 0; });
    if (encoding.IsValidData(kept)) return kept;
    BeepNbT(3);
    return {};
}

String MenuLabEt(StringView text, bool toLabel, Int16 kind)
{
    constexpr Int16 keepsDoubled = 2;
    if (kind < 0 || kind > 3) {
        TellAuthors(U"MenuLabEt, CeTypObj = " + ToText(kind));
        return String(text);
    }
    if (toLabel) return ReplaceAll(text, U"&", U"&&");
    return kind == keepsDoubled ? String(text) : ReplaceAll(text, U"&&", U"&");
}

void PressPapTxt(StringView text) { Clipboard::SetText(text); }

String TypeCompil()
{
    constexpr StringView processor = U"Mac INTEL", width = U" 64-bit", toolchain = U" (Lumbra", release = U"2023r4";
    return Join({{processor, width, toolchain, release, U")"}}, U"");
}

} // namespace Fncts
