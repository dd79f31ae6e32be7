#include "mainwindow/ArchiveName.h"

namespace {

String Digits(int number, Int64 width)
{
    String digits = ToText(number);
    if (const Int64 missing = width - std::ssize(digits); missing > 0)
        digits.insert(0, static_cast<std::size_t>(missing), U'0');
    return digits;
}

} // namespace

String ArchiveName(StringView name, StringView extension, const DateTime& moment)
{
    const StringView base = Left(name, std::ssize(name) - std::ssize(extension));
    return CanonicalForm(base) + U"_" + Digits(moment.Year, 4) + U"-" + Digits(moment.Month, 2) + U"-" +
           Digits(moment.Day, 2) + U"_" + Digits(moment.Hour, 2) + U"'" + Digits(moment.Minute, 2) + U"'" +
           Digits(moment.Second, 2) + CanonicalForm(extension);
}
