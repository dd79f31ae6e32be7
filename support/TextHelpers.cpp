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

void PressPapTxt(StringView text) { Clipboard::SetText(text); }

} // namespace Fncts
