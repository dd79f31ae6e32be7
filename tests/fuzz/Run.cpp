#include "tests/TemporaryFolder.h"
#include "tests/engine/RunLaws.h"
#include "tests/fuzz/Input.h"
#include "toolkit/core/FolderItem.h"

namespace {

/// An accepted text: the one of the input, or it behind a header.
String Accepted(StringView raw)
{
    const Acceptance acceptance = AcceptSceneryText(raw);
    EXPECT_EQ(acceptance.accepted, BeginsWith(raw, TxtDebSpack));
    if (!acceptance.accepted) {
        EXPECT_TRUE(acceptance.text.starts_with(ErrorMarker) && (raw.empty() || acceptance.text.ends_with(raw)));
        return Accepted(String(TxtDebSpack).append(TxtEoF).append(raw));
    }
    EXPECT_EQ(acceptance.text.find(U'\r'), String::npos);
    EXPECT_EQ(AcceptSceneryText(acceptance.text).text, acceptance.text);
    return acceptance.text;
}

} // namespace

void Fuzz(Input& input)
{
    static const TemporaryFolder temporary;
    static const std::vector<String> folders = [] {
        std::vector<String> names;
        for (const char* name : {"A", "B b", "b B", "É", "d:e", "z"})
            temporary.Folder(name);
        for (const FolderItem& child : FolderItem(temporary.Path()).Children())
            names.push_back(Fncts::Naff(child.Name(), true, true));
        return names;
    }();
    const String model = Accepted(input.Text()), source = Accepted(input.Text());
    EXPECT_EQ(RunEngine(model, source, FolderItem(temporary.Path())), RunNaively(model, source, folders));
}
