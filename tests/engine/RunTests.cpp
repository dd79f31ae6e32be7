#include "tests/TemporaryFolder.h"
#include "tests/engine/RunLaws.h"
#include "toolkit/core/FolderItem.h"
#include "toolkit/core/TextEncoding.h"

#include <map>
#include <random>

namespace {

const String header = U"I\n1000 version\nSCENERY";

/// The marks and reports in the form of the files: "model 23 41", "result", then each report.
std::string Findings(const Outcome& outcome)
{
    std::string findings;
    for (const auto& [name, marks] : {std::pair("model", &outcome.modelMarks), {"result", &outcome.resultMarks}}) {
        findings += name;
        for (const Int64 mark : *marks)
            findings += ' ' + std::to_string(mark);
        findings += '\n';
    }
    for (const auto& [message, explanation] : outcome.reports) {
        findings += "--- report\n" + Encodings::UTF8.Encode(message) + '\n';
        if (!explanation.empty()) findings += "--- explanation\n" + Encodings::UTF8.Encode(explanation) + '\n';
    }
    return findings;
}

TEST(Runs, GiveTheExpectedTextMarksAndReports)
{
    for (const auto& run : std::filesystem::directory_iterator(RUNS)) {
        SCOPED_TRACE(run.path().filename());
        const auto read = [&](const char* name) {
            std::ifstream stream(run.path() / name, std::ios::binary);
            return std::string(std::istreambuf_iterator<char>(stream), {});
        };
        const TemporaryFolder folder;
        std::ifstream folders(run.path() / "folders.txt");
        for (std::string name; std::getline(folders, name);)
            folder.Folder(name);
        const Outcome outcome = RunEngine(Encodings::UTF8.Decode(read("model.ini")),
                                          Encodings::UTF8.Decode(read("source.ini")), FolderItem(folder.Path()));
        EXPECT_EQ(Encodings::UTF8.Encode(outcome.text), read("expected.ini"));
        EXPECT_EQ(Findings(outcome), read("findings.txt"));
    }
}

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

    /// A text of many sceneries, about half of which are in any other such text.
    String LongText(std::size_t lines)
    {
        String text = header;
        for (Int64 number = 0; lines > 0; --lines, number += 1 + static_cast<Int64>(Roll(2)))
            text += U"\nSCENERY_PACK Custom Scenery/Région " + ToText(number) + U"/";
        return Variant(text);
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
                  U"Scenery/c|Custom Scenery/d:e/|Custom Scenery/f/|Custom Scenery/g/|*GLOBAL_AIRPORTS*|/x/y/|x|||"
                  U"SCENERY_PACK x|I|scenery_x",
                  U"|");
        String line = String(prefixes[Roll(prefixes.size())]).append(rests[Roll(rests.size())]);
        if (Roll(4) == 0) line = FoldCase(line);
        if (Roll(4) == 0 && !line.empty()) {
            char32_t& letter = line[Roll(line.size())];
            if (letter >= U'a' && letter <= U'z') letter -= U'a' - U'A';
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
        const bool isLong = run % 500 == 0;
        const std::size_t mostLines = 1 + dice.Roll(12);
        const String model = isLong ? dice.LongText(300) : dice.Text(mostLines);
        const String source = isLong              ? dice.LongText(300)
                              : dice.Roll(2) == 0 ? dice.Variant(model)
                                                  : dice.Text(mostLines);
        const Outcome outcome = ExpectLawfulRun(model, source, dossier, folders);
        ASSERT_FALSE(HasFailure()) << "run " << run << "\nmodel " << testing::PrintToString(model) << "\nsource "
                                   << testing::PrintToString(source);
        for (const auto& [message, explanation] : outcome.reports)
            ++messages[message.substr(0, message.find(U'\n'))];
    }
    // Dice that never get as far as a message would prove nothing about it.
    EXPECT_EQ(messages.size(), 5U);
    for (const auto& [message, count] : messages)
        EXPECT_GT(count, 20) << testing::PrintToString(message);
}

TEST(CreerSpack, TakesBadTexts)
{
    const String oneLine = String(U"SCENERY_PACK ").append(10'000'000, U'x');
    const std::tuple<const char*, String, String> rows[] = {
        {"less than a header", U"I\n1000 version", U""},
        {"nothing but line ends", String(9, U'\n'), String(5, U'\n')},
        {"NULs", header + String(U"\nSCENERY_PACK a\0b\n\0", 19), header + String(U"\n\0\nSCENERY_PACK a\0c", 19)},
        {"CR in lines", header + U"\nSCENERY_PACK a\r\n\r", header + U"\r\n\r\nSCENERY_PACK a"},
        {"ten million characters in one line", oneLine, header + U"\n" + oneLine},
        {"what no text should hold", header + U"\n\U0010FFFF\n\uFFFE", header + U"\n\uFFFE\n" + char32_t{0xD800}},
    };
    const TemporaryFolder empty;
    for (const auto& [name, model, source] : rows)
        EXPECT_TRUE(RunEngine(model, source, FolderItem(empty.Path())) == RunNaively(model, source, {})) << name;
}

} // namespace
