#include "engine/Sections.h"

void AppendSection(String& report, StringView title, std::span<const String> items)
{
    if (items.empty()) return;
    if (!report.empty()) report.append(EndOfLine::Native).append(U" ").append(EndOfLine::Native);
    report.append(title);
    for (const String& item : items)
        report.append(EndOfLine::Native).append(U" - ").append(item);
}

String WithNumber(StringView text, Int64 number)
{
    constexpr StringView placeholder = U"¿%";
    const std::size_t place = std::min(text.find(placeholder), text.size());
    String filled(text.substr(0, place));
    filled.append(ToText(number));
    return filled.append(Middle(text, static_cast<Int64>(place + placeholder.size())));
}
