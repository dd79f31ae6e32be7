#include "localisation/Localisation.h"

#include "toolkit/core/System.h"

String Localisation::Text::operator()(StringView language) const
{
    return SystemGetLocalizedString(U"Localisation." + String(name_), french_, language);
}
