#include "engine/Sections.h"

void AppendSection(String& report, StringView title, std::span<const String> items)
{
    if (items.empty()) return;
    if (!report.empty()) report.append(EndOfLine::Native).append(U" ").append(EndOfLine::Native);
    report.append(title);
    for (const String& item : items)
        report.append(EndOfLine::Native).append(U" - ").append(item);
}
