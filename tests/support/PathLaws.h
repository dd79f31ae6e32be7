/// What holds for every path form.
#pragma once

#include "support/PathForm.h"
#include "tests/TemporaryFolder.h"
#include "toolkit/core/TextEncoding.h"

#include <gtest/gtest.h>

inline void ExpectRoundTrip(const std::filesystem::path& path)
{
    for (const bool folderMark : {false, true}) {
        const String form = Fncts::AbsPath_f(FolderItem(path), folderMark);
        const auto found = Fncts::GetFitemAbsPath(form, false);
        EXPECT_EQ(found ? found->Path() : "", path) << Encodings::UTF8.Encode(form);
    }
}

/// Gives files, folders and volumes that name, each with the items that `disk` holds beside it, and looks for them.
inline void ExpectNameComesBack(const TemporaryFolder& disk, const std::filesystem::path& name)
{
    ExpectRoundTrip(disk.File("files" / name));
    ExpectRoundTrip(disk.File("folders" / name / name).parent_path());
    ExpectRoundTrip(disk.File("Volumes" / name / name).parent_path());
    ExpectRoundTrip(disk.Path() / "Volumes" / name / name);
}
