#include "app/App.h"

#include "app/Build.h"
#include "app/FileTypes.h"
#include "support/Fncts.h"
#include "support/Sounds.h"

#include <algorithm>

App::App(int& argc, char** argv)
    : DesktopApplication(argc, argv, U"Tarnivel", String(Build::Version), SmallestScreen)
{
    current_ = this;
    SetDesktopEntry(U"fr.kavesti.tarnivel", U"tarnivel");
    SetMenuBar(Menus.Menus());
}

void App::EnableMenuBoutons(bool idle) const
{
    Fncts::DrapMenu = idle;
    if (EnableControls) EnableControls(idle);
}

bool App::ExtInFileType(StringView ext)
{
    return !ext.empty() && std::ranges::any_of(Split(FileTypes::TextPlain, U";"),
                                               [ext](StringView extension) { return SameText(extension, ext); });
}

void App::DefVolSon(Int16 value)
{
    volSon_ = value < 0 || value > 100 ? Int16{80} : value;
    Fncts::SetVolume(volSon_);
}
