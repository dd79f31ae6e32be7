#include "tests/TemporaryFolder.h"
#include "toolkit/core/FolderItem.h"
#include "toolkit/core/System.h"

#include <chrono>
#include <gtest/gtest.h>

namespace {

/// Gives an environment variable a value for the length of a test; without one it is taken away.
class Variable {
public:
    Variable(const char* name, const char* value)
        : name_(name)
    {
        if (const char* before = std::getenv(name)) before_ = before;
        Set(value);
    }
    ~Variable() { Set(before_ ? before_->c_str() : nullptr); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    void Set(const char* value) const { value ? ::setenv(name_, value, 1) : ::unsetenv(name_); }

    const char* name_;
    std::optional<std::string> before_;
};

class SpecialFolders : public testing::Test {
protected:
    TemporaryFolder folder_;
    Variable data_{"XDG_DATA_HOME", nullptr}, config_{"XDG_CONFIG_HOME", nullptr};
};

TEST_F(SpecialFolders, LieInTheHomeFolder)
{
    const Variable home("HOME", folder_.Path().c_str());
    EXPECT_EQ(SpecialFolder::ApplicationData()->Path(), folder_.Path() / ".local/share");
    EXPECT_TRUE(SpecialFolder::ApplicationData()->IsFolder()) << "a fresh account doesn't have it";
    EXPECT_EQ(SpecialFolder::Preferences()->Path(), folder_.Path() / ".config");
    EXPECT_EQ(SpecialFolder::Documents()->Path(), folder_.Path() / "Documents");
}

TEST_F(SpecialFolders, AreNowhereWithoutAHome)
{
    for (const char* home : {static_cast<const char*>(nullptr), "", "relative", "/nonexistent-home"}) {
        const Variable variable("HOME", home);
        EXPECT_FALSE(SpecialFolder::ApplicationData());
        EXPECT_FALSE(SpecialFolder::Preferences());
        EXPECT_FALSE(SpecialFolder::Documents());
    }
    EXPECT_FALSE(std::filesystem::exists("/nonexistent-home"));
}

TEST_F(SpecialFolders, AreNowhereIfTheyCannotBeMade)
{
    (void)folder_.File(".local", "a file in the way");
    const Variable home("HOME", folder_.Path().c_str());
    EXPECT_FALSE(SpecialFolder::ApplicationData());
}

TEST(Drives, AreTheRootAndTheVolumes)
{
    const TemporaryFolder folder;
    (void)folder.Folder("Volumes/vm");
    (void)folder.Folder("Volumes/Data");
    FolderItem::SetVolumesFolder(folder.Path() / "Volumes");
    EXPECT_EQ(FolderItem::LastDriveIndex(), 2);
    EXPECT_EQ(FolderItem::DriveAt(0).Name(), U"Linux");
    EXPECT_EQ(FolderItem::DriveAt(1).Path(), folder.Path() / "Volumes/Data");
    EXPECT_EQ(FolderItem::DriveAt(1).Parent()->Name(), U"Volumes");
    EXPECT_EQ(FolderItem::DriveAt(2).Name(), U"vm");
    EXPECT_FALSE(FolderItem::DriveAt(3).Exists()) << "a volume may go at any time";
    EXPECT_FALSE(FolderItem::DriveAt(0).Parent());
    EXPECT_TRUE(FolderItem::DriveAt(0).Visible());

    FolderItem::SetVolumesFolder(folder.Path() / "missing");
    EXPECT_FALSE(FolderItem::VolumesFolder());
    EXPECT_EQ(FolderItem::LastDriveIndex(), 0);
    FolderItem::SetVolumesFolder(std::nullopt);
}

TEST(Translations, AreTakenFromTheResources)
{
    ASSERT_TRUE(ResourceFolder());
    const struct {
        const char* name;
        StringView key, language, text;
    } rows[] = {
        {"a language of the program", U"Localisation.Btn_Annuler", U"de", U"Abbrechen"},
        {"a language with its country", U"Localisation.Btn_Annuler", U"PT-BR", U"Cancelar"},
        {"French is the default", U"Localisation.Btn_Annuler", U"fr", U"‡Annuler"},
        {"a language without a translation", U"Localisation.Btn_Annuler", U"xx", U"‡Annuler"},
        {"a language that is a path", U"Localisation.Btn_Annuler", U"/../translations/tarnivel_de", U"‡Annuler"},
        {"a key without a translation", U"Localisation.None", U"de", U"‡Annuler"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(SystemGetLocalizedString(row.key, U"‡Annuler", row.language), row.text) << row.name;
    }
}

TEST(TranslationsDeathTest, AreThoseOfTheUser)
{
    // The language is read once in a process: each row needs one of its own.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const struct {
        const char *language, *languages, *text;
    } rows[] = {
        {"C", nullptr, "<Annuler>"},
        {"fr_FR.UTF-8", nullptr, "<Annuler>"},
        {"de_AT.UTF-8", nullptr, "<Abbrechen>"},
        {"en_US.UTF-8", "pl:pt_BR:de", "<Cancelar>"},
        {"en_US.UTF-8", "pl:fr_CA:de", "<Annuler>"},
        {"pl_PL.UTF-8", nullptr, "<Annuler>"},
    };
    for (const auto& row : rows) {
        const Variable language("LC_ALL", row.language), languages("LANGUAGE", row.languages);
        const auto showTextAndLeave = [] {
            const String text = SystemGetLocalizedString(U"Localisation.Btn_Annuler", U"Annuler", U"");
            std::fprintf(stderr, "<%s>", std::string(text.begin(), text.end()).c_str());
            std::exit(0);
        };
        EXPECT_EXIT(showTextAndLeave(), testing::ExitedWithCode(0), row.text) << row.language;
    }
}

TEST(Ticks, AreSixtiethsOfASecond)
{
    using namespace std::chrono;
    const Int64 before = System::Ticks();
    const auto seconds = duration<double>(steady_clock::now().time_since_epoch()).count();
    const Int64 after = System::Ticks();
    EXPECT_GE(seconds * 60 + 1, static_cast<double>(before));
    EXPECT_LE(seconds * 60 - 1, static_cast<double>(after));
}

} // namespace
