#include "preferences/PreferencesFile.h"

#include "localisation/Localisation.h"
#include "support/Diagnostics.h"
#include "support/Sounds.h"
#include "support/TextHelpers.h"
#include "toolkit/Dialogs.h"
#include "toolkit/core/Exceptions.h"
#include "toolkit/core/FileLock.h"
#include "toolkit/core/TextInputStream.h"

namespace {

constexpr StringView fileName = U"Tarnivel Prefs.txt";

/// Bytes; far above any setting made by hand. A list of more empty texts than that would fill the memory.
constexpr std::size_t longestLine = 8 << 20;

} // namespace

PreferencesFile::PreferencesFile(const FolderItem& folder)
    : file_(folder.Child(fileName).value())
    , read_(ReadFile(file_))
{
    if (!read_.IsWhole()) TellProblem(read_);
    try {
        folder.CheckWritable();
    } catch (const IOException& error) {
        isWritable_ = false;
        MessageBox(Localisation::Filled(Localisation::Txt_PrefsNonGardees(), {folder.NativePath(), error.Message}));
    }
}

PreferencesFile::Read PreferencesFile::ReadFile(const FolderItem& file)
{
    Read read;
    if (!file.Exists()) return read;
    try {
        TextInputStream stream = TextInputStream::Open(file);
        for (Int64 number = 1; !stream.EndOfFile(); ++number) {
            const Bytes line = stream.ReadLine();
            Fncts::Reading reading = line.size() > longestLine ? Fncts::Reading() : Fncts::TextOfBytes(line);
            if (reading.cleanedLines > 0 && read.reading.cleanedLines++ == 0) {
                read.reading.firstCleaned = number;
                read.reading.firstCleanedLine = std::move(reading.firstCleanedLine);
            }
            // An editor may have left the mark of UTF-8 at the start.
            const bool isMarked = number == 1 && reading.text.starts_with(U'\uFEFF');
            const bool taken = ReadPreference(read.settings, isMarked ? Middle(reading.text, 1) : reading.text);
            if (!taken || line.size() > longestLine) ++read.refused;
        }
    } catch (const std::exception& error) {
        read.reading.failure = Fncts::DefAppEncod.Decode(error.what());
    }
    return read;
}

String PreferencesFile::FreeName() const
{
    for (Int64 number = 1;; ++number) {
        String name = U"Tarnivel Prefs " + ToText(number) + U".txt";
        if (!file_.Parent()->Child(name, false)->Exists()) return name;
    }
}

void PreferencesFile::TellProblem(const Read& read) const
{
    const String path = file_.NativePath(), kept = Localisation::Filled(Localisation::Txt_PrefsGardees(), {FreeName()});
    if (!read.reading.failure.empty()) {
        Fncts::BeepNbT(3);
        TellAuthorsShortly(
            Join({{U"PrefsCharger, problem while reading file!", path, read.reading.failure, U" ", kept}}, U"\n"));
    } else {
        const String lost = read.reading.cleanedLines > 0 ? Fncts::CleaningReport(read.reading, path) : path;
        Fncts::BeepNbT(1);
        MessageBox(Join({{lost, U" ", kept}}, U"\n"));
    }
}

Fncts::Outcome PreferencesFile::Write(const Preferences& settings) const
{
    const bool isAsShown = WritePreferences(settings) == WritePreferences(shown_);
    if (!isWritable_ || (isAsShown && file_.Exists())) return {};
    const FileLock lock(file_);
    const bool isThere = file_.Exists();
    const Read present = ReadFile(file_);
    const bool merges = isThere && present.IsWhole();
    const String text =
        WritePreferences(merges ? MergedPreferences(settings, shown_, present.settings, read_.settings) : settings);
    const bool clash = merges && TablesClash(settings, shown_, present.settings, read_.settings);
    try {
        if (clash || (read_.IsWhole() && !present.IsWhole())) TellProblem(present);
        if (isThere && (clash || !merges)) file_.Rename(FreeName());
    } catch (const std::exception& error) {
        return {Fncts::DefAppEncod.Decode(error.what())};
    }
    return Fncts::SauvFichier(file_, text);
}
