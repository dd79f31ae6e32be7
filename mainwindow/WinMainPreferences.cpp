#include "app/App.h"
#include "mainwindow/WinMain.h"
#include "preferences/Preferences.h"
#include "support/Diagnostics.h"
#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "support/Sounds.h"
#include "support/TextFiles.h"
#include "toolkit/Desktop.h"
#include "toolkit/core/TextInputStream.h"

namespace {

constexpr StringView fileName = U"Tarnivel Prefs.txt";

/// Bytes; far above any setting made by hand. A list of more empty texts than that would fill the memory.
constexpr std::size_t longestLine = 8 << 20;

/// What the file says; if reading fails, which is told to the user, what could be read until then.
Preferences ReadPreferences(const FolderItem& file)
{
    Preferences preferences;
    try {
        TextInputStream stream = TextInputStream::Open(file);
        for (bool isFirst = true; !stream.EndOfFile(); isFirst = false) {
            const Bytes line = stream.ReadLine();
            if (line.size() > longestLine) continue;
            const String text = Fncts::TextOfBytes(line);
            // An editor may have left the mark of UTF-8 at the start.
            ReadPreference(preferences, isFirst && text.starts_with(U'\uFEFF') ? Middle(text, 1) : text);
        }
    } catch (const std::exception&) {
        Fncts::BeepNbT(3);
        TellAuthorsShortly(U"PrefsCharger, problem while reading file!");
    }
    return preferences;
}

void SetField(DesktopTextField& field, const std::optional<String>& text)
{
    if (text) field.SetText(*text);
}

} // namespace

void WinMain::PrefsCharger()
{
    const std::optional<FolderItem> file = Fncts::DossierPref->Child(fileName, true);
    Preferences preferences = file && file->Exists() ? ReadPreferences(*file) : Preferences();
    Fncts::AffHelpTag = preferences.AffHelpTag.value_or(true);
    Fncts::CtrlFenetrOuv({this});
    // Beeps last; a broken file is not to hold up the start.
    constexpr int mostRefusals = 5;
    for (int refused = 0; refused < std::min(preferences.sourceModel.refused, mostRefusals); ++refused)
        Fncts::BeepNbT(3);
    if (preferences.sourceModel.index) RadGrpSrc.SetSelectedIndex(*preferences.sourceModel.index);
    SetField(TextFieldMod1, preferences.modelFile);
    SetField(TextFieldMod2, preferences.modelUrl);
    ChBoxArchiv.SetValue(preferences.archive);
    SetField(TextFieldArchiv, preferences.archiveFolder);
    SetField(TextFieldSpack, preferences.spackFile);

    App& app = App::Current();
    app.DrapAffBtnSpecA = preferences.DrapAffBtnSpecA;
    app.WspecAheight = preferences.WspecAheight;
    app.PathSpecA = std::move(preferences.PathSpecA);
    app.TabSpecAorg = std::move(preferences.TabSpecAorg);
    app.TabSpecAdest1 = std::move(preferences.TabSpecAdest1);
    app.TabSpecAdest2 = std::move(preferences.TabSpecAdest2);
    app.DefVolSon(preferences.volume);

    const DesktopDisplay screen = DesktopDisplay::DisplayAt(0);
    const WindowGeometry geometry =
        FitToScreen(preferences.geometry, MinimumWidth(), MinimumHeight(), screen.Width, screen.Height);
    SetLeft(geometry.left);
    SetTop(geometry.top);
    SetWidth(geometry.width);
    // The status bar is to be seen, even where the place is the whole screen or was kept without one.
    SetHeight(std::min<int>(geometry.height, screen.Height - geometry.top - StatusHeight()));
}

void WinMain::PrefsSauver() const
{
    if (!Fncts::PasNil_Existe_Alias(Fncts::DossierPref, true)) return;
    App& app = App::Current();
    const WindowPlace place = RestoredPlace();
    const DesktopDisplay screen = DesktopDisplay::DisplayAt(0);
    const String text = WritePreferences({
        .DrapAffBtnSpecA = app.DrapAffBtnSpecA,
        .archive = ChBoxArchiv.Value(),
        .volume = app.DefVolSon(),
        .geometry = WithinScreen(place.left, place.top, place.width, place.height, screen.Width, screen.Height),
        .sourceModel = {.index = RadGrpSrc.SelectedIndex()},
        .modelFile = TextFieldMod1.Text(),
        .modelUrl = TextFieldMod2.Text(),
        .archiveFolder = TextFieldArchiv.Text(),
        .spackFile = TextFieldSpack.Text(),
        .WspecAheight = app.WspecAheight,
        .PathSpecA = app.PathSpecA,
        .TabSpecAorg = app.TabSpecAorg,
        .TabSpecAdest1 = app.TabSpecAdest1,
        .TabSpecAdest2 = app.TabSpecAdest2,
    });
    const std::optional<FolderItem> file = Fncts::DossierPref->Child(fileName, true);
    if (file && Fncts::SauvFichier(*file, text)) return;
    Fncts::BeepNbT(3);
    TellAuthorsShortly(U"PrefsSauver, problem while writing file!");
}
