#include "tests/TemporaryFolder.h"
#include "tests/engine/RunLaws.h"
#include "toolkit/core/FolderItem.h"

#include <map>
#include <random>

namespace {

const String header = U"I\n1000 version\nSCENERY";

class Dice {
public:
    std::size_t Roll(std::size_t sides) { return std::uniform_int_distribution<std::size_t>(0, sides - 1)(engine_); }

    /// A short text whose lines meet each other often: as repeats, as twins, in another case.
    String Text(std::size_t mostLines)
    {
        String text = Roll(9) == 0 ? U"i\n1000 VERSION\nscenery_X" : header;
        for (std::size_t lines = Roll(mostLines + 1); lines > 0; --lines)
            text += U"\n" + Line();
        return text.append(Roll(3), U'\n');
    }

    /// The lines of a text in another order, some in another state or case.
    String Variant(StringView text)
    {
        std::vector<StringView> lines = Split(text, U"\n");
        std::shuffle(lines.begin() + 3, lines.end(), engine_);
        String variant;
        for (const StringView line : lines) {
            const bool enabled = BeginsWith(line, U"SCENERY_PACK ") && Roll(2) == 0;
            variant += enabled ? U"SCENERY_PACK_DISABLED " + String(line.substr(13)) : String(line);
            variant += U'\n';
        }
        return Roll(2) == 0 ? FoldCase(variant) : variant;
    }

private:
    String Line()
    {
        static const std::vector<StringView> prefixes =
            Split(U"SCENERY_PACK |SCENERY_PACK |SCENERY_PACK_DISABLED |SCENERY_PACK_DISABLED ||SCENERY_PAC\u212A | "
                  U"SCENERY_PACK ",
                  U"|");
        static const std::vector<StringView> rests =
            Split(U"Custom Scenery/a/|Custom Scenery/é/|Custom Scenery/e\u0301/|Custom Scenery/B b/x/y|Custom "
                  U"Scenery/c|Custom Scenery/d:e/|Custom Scenery/f/|Custom Scenery/g/|Custom Scenery/\u0161/|"
                  U"Custom Scenery/\U00010061/|*GLOBAL_AIRPORTS*|/x/y/|x|||SCENERY_PACK Custom "
                  U"Scenery/c/|#SCENERY_PACK Custom Scenery//SCENERY_PACK Custom Scenery/a/|"
                  U"Custom Scenery/a/SCENERY_PACK Custom Scenery/b/|SCENERY_PACK x|I|scenery_x",
                  U"|");
        String line = String(prefixes[Roll(prefixes.size())]).append(rests[Roll(rests.size())]);
        if (Roll(4) == 0) line = FoldCase(line);
        if (Roll(4) == 0 && !line.empty()) {
            char32_t& letter = line[Roll(line.size())];
            if (letter >= U'a' && letter <= U'z') letter -= U'a' - U'A';
            if (Roll(9) == 0) letter = U"\0\r\uFFFE"[Roll(3)];
        }
        return line;
    }

    std::mt19937 engine_{20240225};
};

TEST(CreerSpack, DoesWhatTheNaiveEngineDoes)
{
    TemporaryFolder temporary;
    for (const char* name : {"A", "B b", "b B", "É", "d:e", "z"})
        temporary.Folder(name);
    const FolderItem dossier(temporary.Path());
    std::vector<String> folders;
    for (const FolderItem& child : dossier.Children())
        folders.push_back(Fncts::Naff(child.Name(), true, true));

    Dice dice;
    std::map<String, int> messages;
    for (int run = 0; run < 6000; ++run) {
        const std::size_t mostLines = 1 + dice.Roll(12);
        const String model = dice.Text(mostLines);
        const String source = dice.Roll(2) == 0 ? dice.Variant(model) : dice.Text(mostLines);
        const Outcome outcome = RunEngine(model, source, dossier);
        ASSERT_EQ(outcome, RunNaively(model, source, folders))
            << "run " << run << "\nmodel " << testing::PrintToString(model) << "\nsource "
            << testing::PrintToString(source);
        for (const auto& [message, explanation] : outcome.reports)
            ++messages[message.substr(0, message.find(U'\n'))];
    }
    // Dice that never get as far as a message would prove nothing about it.
    EXPECT_EQ(messages.size(), 5U);
    for (const auto& [message, count] : messages)
        EXPECT_GT(count, 20) << testing::PrintToString(message);
}

} // namespace
