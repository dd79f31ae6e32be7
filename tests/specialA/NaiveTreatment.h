/// The treatment once more, as plainly as it can be written.
#pragma once

#include "specialA/Treatment.h"

#include <gtest/gtest.h>

inline String ReplaceNaively(StringView text, StringView searched, StringView replacement)
{
    String replaced;
    while (!text.empty()) {
        const bool found = BeginsWith(text, searched);
        replaced += found ? replacement : text.substr(0, 1);
        text.remove_prefix(found ? searched.size() : 1);
    }
    return replaced;
}

inline void ExpectTreatedAsNaively(const String& original, const std::vector<ReplacementRow>& rows)
{
    String missing, found, dest1 = original, dest2 = original;
    for (const ReplacementRow& row : rows) {
        if (row.searched.empty()) continue;
        Int64 count = 0;
        for (std::size_t at = 0; at < original.size(); ++at)
            count += BeginsWith(StringView(original).substr(at), row.searched) ? 1 : 0;
        (count == 0 ? missing : found) += U"\n • " + ToText(count) + U" x “" + row.searched + U"”";
        dest1 = ReplaceNaively(dest1, row.searched, row.replacement1);
        dest2 = ReplaceNaively(dest2, row.searched, row.replacement2);
    }
    const Treatment treated = *Treat(original, rows);
    EXPECT_EQ(treated.report, missing + found);
    EXPECT_EQ(treated.dest1, dest1);
    EXPECT_EQ(treated.dest2, dest2);
}
