#include "mainwindow/ArchiveName.h"

#include <algorithm>

namespace {

String Digits(int number, std::size_t width = 2)
{
    const String digits = ToText(number);
    return String(width - std::min(width, digits.size()), U'0') + digits;
}

} // namespace

String ArchiveName(StringView name, StringView extension, const DateTime& moment)
{
    const StringView base = Left(name, std::ssize(name) - std::ssize(extension));
    return CanonicalForm(base) + U"_" + Digits(moment.Year, 4) + U"-" + Digits(moment.Month) + U"-" +
           Digits(moment.Day) + U"_" + Digits(moment.Hour) + U"'" + Digits(moment.Minute) + U"'" +
           Digits(moment.Second) + CanonicalForm(extension);
}
