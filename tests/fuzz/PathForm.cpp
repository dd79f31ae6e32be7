#include "tests/fuzz/Input.h"
#include "tests/support/PathLaws.h"
#include "toolkit/core/FolderItem.h"

namespace {

bool CanBeAName(const Bytes& name)
{
    constexpr std::size_t longest = 255;
    return !name.empty() && name.size() <= longest && name != "." && name != ".." &&
           name.find_first_of(std::string_view("/\0", 2)) == Bytes::npos && Encodings::UTF8.IsValidData(name);
}

String Canonical(const Bytes& name) { return CanonicalForm(Encodings::UTF8.Decode(name)); }

} // namespace

void Fuzz(Input& input)
{
    const TemporaryFolder disk;
    FolderItem::SetVolumesFolder(disk.Folder("Volumes"));
    const Bytes first = input.Piece(), second = input.Piece();
    if (CanBeAName(first)) ExpectNameComesBack(disk, first);
    // Of two names that are the same in canonical form a path can mean one alone.
    if (CanBeAName(second) && Canonical(first) != Canonical(second)) {
        ExpectNameComesBack(disk, second);
        if (CanBeAName(first)) ExpectNameComesBack(disk, first);
    }
    const auto named = Fncts::GetFitemAbsPath(input.Text(), input.ConsumeBool());
    if (named && named->Exists()) ExpectRoundTrip(named->Path());
}
