#include "app/App.h"

#include "app/Build.h"
#include "app/FileTypes.h"
#include "support/FileHelpers.h"
#include "support/Fncts.h"
#include "support/Sounds.h"
#include "toolkit/Desktop.h"

#include <algorithm>

namespace {

App* current = nullptr;

} // namespace

App::App(int& argc, char** argv)
    : DesktopApplication(argc, argv, U"Tarnivel", String(Build::Version))
{
    current = this;
    SetDesktopEntry(U"fr.kavesti.tarnivel", U"tarnivel");
    menuBar_.ApplePrefs.Action = [this] { return ApplePrefs_Action(); };
    menuBar_.FichSaveFile.Action = [this] { return FichSaveFile_Action(); };
    menuBar_.FichSelArchivDoss.Action = [this] { return FichSelArchivDoss_Action(); };
    menuBar_.FichSelFichSpack.Action = [this] { return FichSelFichSpack_Action(); };
    menuBar_.FichSelFichModel.Action = [this] { return FichSelFichModel_Action(); };
    MenuBarSelected = [this] { Event_MenuBarSelected(); };
    SetMenuBar(menuBar_.Menus());
}

App::~App() { current = nullptr; }

App& App::Current() { return *current; }

void App::Event_MenuBarSelected()
{
    menuBar_.FichSelFichModel.Enabled = Fncts::DrapMenu;
    menuBar_.FichSelArchivDoss.Enabled = Fncts::DrapMenu;
    menuBar_.FichSelFichSpack.Enabled = Fncts::DrapMenu;
    menuBar_.FichSaveFile.Enabled = Fncts::DrapMenu;
    menuBar_.ApplePrefs.Enabled = Fncts::DrapMenu;
}

void App::EnableMenuBoutons() const
{
    if (MainWindow.EnableControls) MainWindow.EnableControls(Fncts::DrapMenu);
}

bool App::ExtInFileType(StringView ext)
{
    static const std::vector<StringView> extensions = Split(FileTypes::TextPlain.Extensions, U";");
    return !ext.empty() &&
           std::ranges::any_of(extensions, [ext](StringView extension) { return SameText(extension, ext); });
}

Int16 App::DefVolSon(Int16 value, bool set)
{
    if (!set) return volSon_;
    volSon_ = value < 0 || value > 100 ? Int16{80} : value;
    Fncts::SetVolume(volSon_);
    return volSon_;
}

bool App::FichSaveFile_Action() const
{
    if (menuBar_.FichSaveFile.Enabled) MainWindow.ActSaveFile();
    return true;
}

bool App::FichSelArchivDoss_Action() const
{
    if (menuBar_.FichSelArchivDoss.Enabled) MainWindow.ActSelArchivDoss(false);
    return true;
}

bool App::FichSelFichSpack_Action() const
{
    if (menuBar_.FichSelFichSpack.Enabled) MainWindow.ActSelFichSpack(false);
    return true;
}

bool App::FichSelFichModel_Action() const
{
    if (menuBar_.FichSelFichModel.Enabled) MainWindow.ActSelFichModel(false);
    return true;
}

bool App::ApplePrefs_Action() const
{
    if (!menuBar_.ApplePrefs.Enabled) return true;
    if (!Keyboard::AsyncShiftKey() || !Keyboard::AsyncAltKey()) {
        MainWindow.ShowPreferences();
        return true;
    }
    if (Fncts::PasNil_Existe_Alias(Fncts::DossierPref, true))
        OpenItem(*Fncts::DossierPref);
    else
        Fncts::BeepNbT(1);
    return true;
}
