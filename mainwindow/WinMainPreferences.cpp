#include "app/App.h"
#include "mainwindow/WinMain.h"
#include "support/Diagnostics.h"
#include "support/Fncts.h"
#include "support/Sounds.h"
#include "toolkit/Desktop.h"

namespace {

void SetField(DesktopTextField& field, const std::optional<String>& text)
{
    if (text) field.SetText(*text);
}

} // namespace

void WinMain::PrefsCharger()
{
    PreferencesFile& file = prefsFile_.emplace(*Fncts::DossierPref);
    Preferences preferences = file.Settings();
    Fncts::AffHelpTag = preferences.AffHelpTag.value_or(true);
    Fncts::CtrlFenetrOuv({this});
    // Beeps last; a broken file is not to hold up the start.
    constexpr int mostRefusals = 5;
    for (int refused = 0; refused < std::min(file.Refused(), mostRefusals); ++refused)
        Fncts::BeepNbT(3);
    if (preferences.sourceModel) RadGrpSrc.SetSelectedIndex(*preferences.sourceModel);
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
    file.ShownAs(ShownPreferences());
}

Preferences WinMain::ShownPreferences() const
{
    App& app = App::Current();
    const WindowPlace place = RestoredPlace();
    const DesktopDisplay screen = DesktopDisplay::DisplayAt(0);
    return {
        .DrapAffBtnSpecA = app.DrapAffBtnSpecA,
        .archive = ChBoxArchiv.Value(),
        .volume = app.DefVolSon(),
        .geometry = WithinScreen(place.left, place.top, place.width, place.height, screen.Width, screen.Height),
        .sourceModel = RadGrpSrc.SelectedIndex(),
        .modelFile = TextFieldMod1.Text(),
        .modelUrl = TextFieldMod2.Text(),
        .archiveFolder = TextFieldArchiv.Text(),
        .spackFile = TextFieldSpack.Text(),
        .WspecAheight = app.WspecAheight,
        .PathSpecA = app.PathSpecA,
        .TabSpecAorg = app.TabSpecAorg,
        .TabSpecAdest1 = app.TabSpecAdest1,
        .TabSpecAdest2 = app.TabSpecAdest2,
    };
}

void WinMain::PrefsSauver() const
{
    if (!prefsFile_) return;
    const Fncts::Outcome written = prefsFile_->Write(ShownPreferences());
    if (written) return;
    Fncts::BeepNbT(3);
    TellAuthorsShortly(Join(
        {{U"PrefsSauver, problem while writing file!", Fncts::DossierPref->NativePath(), written.failure}}, U"\n"));
}
