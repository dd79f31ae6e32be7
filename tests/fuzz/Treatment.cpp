#include "tests/fuzz/Input.h"
#include "tests/specialA/NaiveTreatment.h"

void Fuzz(Input& input)
{
    constexpr std::size_t most = 20'000, longEnoughToBeCut = 9'000;
    const String piece = input.Text() + U'\n';
    String original = piece;
    if (input.UpTo(7) == 1) {
        while (original.size() < longEnoughToBeCut)
            original += piece;
    }
    std::vector<ReplacementRow> rows;
    for (std::size_t length = original.size(); input.remaining_bytes() > 0;) {
        rows.push_back({input.Text(), input.Text(), input.Text()});
        const auto& [searched, replacement1, replacement2] = rows.back();
        const std::size_t longest = std::max(replacement1.size(), replacement2.size());
        if (!searched.empty() && longest > searched.size()) length = (length / searched.size() + 1) * longest;
        if (length > most) return;
    }
    ExpectTreatedAsNaively(original, rows);
}
