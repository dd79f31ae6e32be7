#include "localisation/Localisation.h"

#include "toolkit/core/System.h"

String Localisation::Text::operator()(StringView language) const
{
    return SystemGetLocalizedString(U"Localisation." + String(name), french, language);
}

String Localisation::Filled(StringView text, std::initializer_list<StringView> fillings)
{
    constexpr StringView placeholder = U"¿%";
    Int64 part = 1;
    String filled(NthField(text, placeholder, part));
    for (const StringView filling : fillings)
        filled.append(filling).append(NthField(text, placeholder, ++part));
    return filled;
}
