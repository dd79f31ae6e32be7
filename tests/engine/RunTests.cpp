#include "tests/TemporaryFolder.h"
#include "tests/engine/Outcome.h"
#include "toolkit/core/TextInputStream.h"

#include <filesystem>
#include <set>
#include <sstream>

namespace fs = std::filesystem;

namespace {

Bytes Read(const fs::path& file) { return TextInputStream::Open(FolderItem(file)).ReadAll(); }

String ReadText(const fs::path& file) { return Encodings::UTF8.Decode(Read(file)); }

/// The marks and reports in the form of the files: "model 23 41", "result", then each report.
std::string Findings(const Outcome& outcome)
{
    std::ostringstream findings;
    findings << "model";
    for (const Int64 mark : outcome.modelMarks)
        findings << ' ' << mark;
    findings << "\nresult";
    for (const Int64 mark : outcome.resultMarks)
        findings << ' ' << mark;
    findings << '\n';
    for (const auto& [message, explanation] : outcome.reports) {
        findings << "--- report\n" << Encodings::UTF8.Encode(message) << '\n';
        if (!explanation.empty()) findings << "--- explanation\n" << Encodings::UTF8.Encode(explanation) << '\n';
    }
    return findings.str();
}

class Run : public testing::TestWithParam<fs::path> {};

TEST_P(Run, GivesTheExpectedTextMarksAndReports)
{
    TemporaryFolder folder;
    std::ifstream folders(GetParam() / "folders.txt");
    for (std::string name; std::getline(folders, name);)
        folder.Folder(name);
    const Outcome outcome =
        RunEngine(ReadText(GetParam() / "model.ini"), ReadText(GetParam() / "source.ini"), FolderItem(folder.Path()));
    EXPECT_EQ(Encodings::UTF8.Encode(outcome.text), Read(GetParam() / "expected.ini"));
    EXPECT_EQ(Findings(outcome), Read(GetParam() / "findings.txt"));
}

std::set<fs::path> AllRuns() { return {fs::directory_iterator(RUNS), fs::directory_iterator()}; }

INSTANTIATE_TEST_SUITE_P(Data, Run, testing::ValuesIn(AllRuns()),
                         [](const auto& run) { return run.param.filename().string(); });

} // namespace
