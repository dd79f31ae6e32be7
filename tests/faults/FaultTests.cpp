#include "support/FileHelpers.h"
#include "tests/faults/FaultTest.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

namespace fs = std::filesystem;

const StringView copyFailed = U"Erreur pendant la copie de l'ancien", writeFailed = U"Erreur pendant l'écriture",
                 preferencesFailed = U"Error ! Please contact the authors.\nPrefsSauver",
                 variantFailed = U"Il y a eu une erreur pendant l'écriture du fichier.",
                 notRead = U"Le fichier original ne peut pas être lu.";

/// These may fail in silence: a close after reading or when the file is in its place, the search for another form of a
/// name, and the removal of what an earlier program left.
bool IsHarmless(const std::string& call)
{
    return call.starts_with("close") || call.starts_with("openat") || call.starts_with("unlink");
}

class Faults : public FaultTest {
protected:
    std::vector<std::string> Attempt(const Fault& fault, const std::function<void()>& act)
    {
        Reset();
        if (prepare) prepare();
        probe.Asked.clear();
        FileFaults faults(folder.Path(), fault);
        act();
        return faults.calls;
    }

    /// Acts once to count the calls, then again for each of them, which fails with each error once, and with one of
    /// them for good. `check` looks at what is on disk and what was asked; it is told whether faults were for good.
    void ForEachFault(const std::function<void()>& act, const std::function<void(bool forGood)>& check)
    {
        const std::vector<std::string> calls = Attempt({}, act);
        const std::vector<String> asked = probe.Asked;
        EXPECT_GE(calls.size(), 3U) << "calls go unseen";
        check(false);
        for (const auto& [error, forGood] : {std::pair(ENOSPC, false), {EIO, false}, {EACCES, false}, {EIO, true}}) {
            for (std::size_t call = 1; call <= calls.size() && !HasFailure(); ++call) {
                SCOPED_TRACE(calls[call - 1] + (forGood ? " and all after it: " : ": ") + std::strerror(error));
                Attempt({static_cast<int>(call), error, forGood}, act);
                check(forGood);
                // A file is opened to be locked, and again to be read.
                const bool locks =
                    call < calls.size() && calls[call] == calls[call - 1] && calls[call].starts_with("open");
                EXPECT_TRUE(locks || IsHarmless(calls[call - 1]) || probe.Asked != asked) << "nobody was told";
            }
        }
        Attempt({}, act);
        check(false);
    }

    /// Brings the program into the state that each attempt begins with.
    std::function<void()> prepare;

    std::ptrdiff_t Told(StringView message) const
    {
        return std::ranges::count_if(probe.Asked, [&](const String& asked) { return asked.starts_with(message); });
    }
};

TEST_F(Faults, OfASaveAreToldAndLeaveTheOldFileInOnePlaceOrTheOther)
{
    OpenAndFill();
    // The file is as it was when it was written here last.
    prepare = [this] {
        window->ChBoxArchiv.SetValue(false);
        probe.Answers = {1, 3};
        window->TextAreaAff.SetText(Encodings::UTF8.Decode(old));
        window->BtnSave_Pressed();
        window->ChBoxArchiv.SetValue(true);
        window->TextAreaAff.SetText(Encodings::UTF8.Decode(fresh));
    };
    for (const int answer : {3, 1}) {
        SCOPED_TRACE(answer == 3 ? "goes on without archive" : "gives up without archive");
        const auto act = [&] {
            probe.Answers = {1, answer, answer};
            window->BtnSave_Pressed();
        };
        ForEachFault(act, [&](bool forGood) {
            // What can't be read to be compared is asked about first, and takes the answer.
            const bool unsure = Told(U"“Linux:") > 0, failed = Told(copyFailed) > 0, goesOn = answer == 3;
            const bool noArchive = failed || (unsure && !goesOn && Archives().empty());
            const bool written = unsure ? goesOn && !failed : goesOn || !failed;
            EXPECT_EQ(folder.Content(target), written && Told(writeFailed) == 0 ? fresh : old);
            EXPECT_TRUE(forGood || Leftovers(target) == 0);
            // Half a copy is taken away again, where that is possible.
            EXPECT_TRUE((noArchive && forGood) || Archives() == std::vector(noArchive ? 0 : 1, old));
            EXPECT_TRUE(Fncts::DrapMenu);
        });
    }
}

TEST_F(Faults, OfThePreferencesAreToldAndLeaveTheOldOrTheNewOnes)
{
    OpenAndFill();
    const auto act = [&] {
        window->Close();
        window->TimerQuit.SetRunMode(Timer::RunModes::Off);
        EXPECT_TRUE(app->DrapOkQuit) << "the program ends all the same";
        app->DrapOkQuit = false;
        Fncts::DrapMenu = true;
    };
    Attempt({}, act);
    const std::string written = folder.Content(preferences);
    ASSERT_LT(written.size(), oldPreferences.size());
    ForEachFault(act, [&](bool forGood) {
        EXPECT_EQ(folder.Content(preferences), Told(preferencesFailed) > 0 ? oldPreferences : written);
        const bool kept = Told(U"Error ! Please contact the authors.\nPrefsCharger") > 0;
        EXPECT_TRUE(forGood || Leftovers(preferences) == (kept ? 1 : 0));
        EXPECT_TRUE(!kept || folder.Content(preferences.parent_path() / "Tarnivel Prefs 1.txt") == oldPreferences ||
                    Told(preferencesFailed) > 0);
    });
}

TEST_F(Faults, OfAnOlderDataFolderThatKeepsItsPlaceAreTold)
{
    setenv("XDG_CONFIG_HOME", (folder.Path() / "config").c_str(), 1);
    before = {{folder.Path() / "config/Tarnivel/Tarnivel Prefs.txt", "old"}, {folder.Path() / "data/other", ""}};
    const auto act = [] { Fncts::DefDossAppDataPref(); };
    const std::vector<std::string> calls = Attempt({}, act);
    const auto renaming = std::ranges::find(calls, "rename /config/Tarnivel") - calls.begin();
    Attempt({static_cast<int>(renaming) + 1, EACCES}, act);
    EXPECT_EQ(Told(U"Les réglages d'une version plus ancienne n'ont pas pu être déplacés"), 1);
    EXPECT_EQ(Fncts::DossierPref->Path(), folder.Path() / "config/Tarnivel") << "used where it is";
    EXPECT_EQ(folder.Content("config/Tarnivel/Tarnivel Prefs.txt"), "old");
    act();
    EXPECT_EQ(folder.Content(preferences), "old") << "the next start tries anew";
}

TEST_F(Faults, OfATreatmentAreToldForEachVariant)
{
    Reset();
    Open();
    ForEachFault([this] { Treat(); },
                 [&](bool forGood) {
                     EXPECT_EQ(folder.Content(original), before[original]);
                     const std::string first = folder.Content(one);
                     const bool second = fs::is_regular_file(two) && folder.Content(two) == Lines('2');
                     const auto failures = (first == Lines('1') ? 0 : 1) + (second ? 0 : 1);
                     EXPECT_TRUE(first == Lines('1') || first == "old");
                     EXPECT_TRUE(second || Told(variantFailed) > 0 || folder.Content(two / "inner") == "old");
                     EXPECT_TRUE(Told(notRead) == 1 || failures <= Told(variantFailed));
                     EXPECT_TRUE(forGood || failures > 0 || Leftovers(original) == 2);
                     EXPECT_TRUE(Fncts::DrapMenu);
                 });
}

} // namespace
