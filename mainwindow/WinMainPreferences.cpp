#include "app/App.h"
#include "mainwindow/WinMain.h"
#include "preferences/Preferences.h"
#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "support/Sounds.h"
#include "support/TextFiles.h"
#include "toolkit/Desktop.h"
#include "toolkit/Dialogs.h"
#include "toolkit/core/TextInputStream.h"

namespace {

constexpr StringView fileName = U"Tarnivel Prefs.txt";

/// The lines of the file; as many as could be read if reading fails, which is told to the user.
std::vector<String> ReadLines(const FolderItem& file)
{
    std::vector<String> lines;
    try {
        TextInputStream stream = TextInputStream::Open(file);
        while (!stream.EndOfFile())
            lines.push_back(Fncts::TextOfBytes(stream.ReadLine()));
    } catch (const std::exception&) {
        Fncts::BeepNbT(3);
        MessageBox(U"Error ! Please contact the authors.\nPrefsCharger, problem while reading file!");
    }
    // An editor may have left the mark of UTF-8 at the start.
    if (!lines.empty() && lines.front().starts_with(U'\uFEFF')) lines.front().erase(0, 1);
    return lines;
}

void SetField(DesktopTextField& field, const std::optional<String>& text)
{
    if (text) field.SetText(*text);
}

} // namespace

void WinMain::PrefsCharger()
{
    std::vector<String> lines;
    const std::optional<FolderItem> file = Fncts::DossierPref->Child(fileName, true);
    if (file && file->Exists()) lines = ReadLines(*file);

    Preferences preferences = ReadPreferences(lines);
    Fncts::AffHelpTag = preferences.AffHelpTag;
    Fncts::CtrlFenetrOuv({this});
    if (preferences.sourceModelRefused) Fncts::BeepNbT(3);
    if (preferences.sourceModel) RadGrpSrc.SetSelectedIndex(*preferences.sourceModel);
    SetField(TextFieldMod1, preferences.modelFile);
    SetField(TextFieldMod2, preferences.modelUrl);
    if (preferences.archive) ChBoxArchiv.SetValue(*preferences.archive);
    SetField(TextFieldArchiv, preferences.archiveFolder);
    SetField(TextFieldSpack, preferences.spackFile);

    App& app = App::Current();
    app.DrapAffBtnSpecA = preferences.DrapAffBtnSpecA;
    app.WspecAheight = preferences.WspecAheight;
    app.PathSpecA = std::move(preferences.PathSpecA);
    app.TabSpecAorg = std::move(preferences.TabSpecAorg);
    app.TabSpecAdest1 = std::move(preferences.TabSpecAdest1);
    app.TabSpecAdest2 = std::move(preferences.TabSpecAdest2);
    app.DefVolSon(preferences.volume, true);

    const DesktopDisplay screen = DesktopDisplay::DisplayAt(0);
    const WindowGeometry geometry =
        FitToScreen(preferences.geometry, MinimumWidth(), MinimumHeight(), screen.Width, screen.Height);
    SetLeft(geometry.left);
    SetTop(geometry.top);
    SetWidth(geometry.width);
    SetHeight(geometry.height);
}

void WinMain::PrefsSauver() const
{
    if (!Fncts::PasNil_Existe_Alias(Fncts::DossierPref, true)) return;
    App& app = App::Current();
    const auto points = [](int length) { return static_cast<Int16>(length); };
    const String text = WritePreferences({
        .DrapAffBtnSpecA = app.DrapAffBtnSpecA,
        .volume = app.DefVolSon(-1, false),
        .geometry = {points(Left()), points(Top()), points(Width()), points(Height())},
        .sourceModel = RadGrpSrc.SelectedIndex(),
        .modelFile = TextFieldMod1.Text(),
        .modelUrl = TextFieldMod2.Text(),
        .archiveFolder = TextFieldArchiv.Text(),
        .spackFile = TextFieldSpack.Text(),
        .archive = ChBoxArchiv.Value(),
        .WspecAheight = app.WspecAheight,
        .PathSpecA = app.PathSpecA,
        .TabSpecAorg = app.TabSpecAorg,
        .TabSpecAdest1 = app.TabSpecAdest1,
        .TabSpecAdest2 = app.TabSpecAdest2,
    });
    const std::optional<FolderItem> file = Fncts::DossierPref->Child(fileName, true);
    if (file && Fncts::SauvFichier(*file, text)) return;
    Fncts::BeepNbT(3);
    MessageBox(U"Error ! Please contact the authors.\nPrefsSauver, problem while writing file!");
}
