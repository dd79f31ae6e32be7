#include "app/App.h"
#include "engine/CreerSpack.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "mainwindow/ReportSeries.h"
#include "mainwindow/WinMain.h"
#include "support/Fncts.h"
#include "support/PathForm.h"
#include "support/Sounds.h"
#include "support/TextFiles.h"

namespace {

constexpr int fetchTimeout = 10;

/// Replaces `text` by its accepted form or by an error text; true when it was refused.
bool Refuses(String& text)
{
    Acceptance acceptance = AcceptSceneryText(text);
    text = std::move(acceptance.text);
    return !acceptance.accepted;
}

} // namespace

void WinMain::BtnRun_Pressed()
{
    if (Fncts::DrapMenu) {
        TextAreaAff.SetFocus();
        App::Current().EnableMenuBoutons(false);
        TimerDebRun.SetRunMode(Timer::RunModes::Single);
    } else {
        URLCnctLirePage.Disconnect();
        texts_.InitVars(true, false);
        AffArea();
        EndRun();
    }
}

void WinMain::TimerDebRun_Action()
{
    texts_.InitVars(true, true);
    if (RadGrpSrc.SelectedIndex() == 0)
        return RunSuite(Fncts::LireFichier(Fncts::GetFitemAbsPath(TextFieldMod1.Text(), false)));
    const String url = TextFieldMod2.Text();
    if (BeginsWith(url, U"http://") || BeginsWith(url, U"https://"))
        return URLCnctLirePage.Send(U"Get", url, fetchTimeout);
    Tell(Localisation::Txt_UrlDoitCommencer());
    RunSuite({});
}

void WinMain::RunSuite(String model)
{
    texts_.TextModel = std::move(model);
    bool failed = Refuses(texts_.TextModel);
    const std::optional<FolderItem> spack = Fncts::GetFitemAbsPath(TextFieldSpack.Text(), false);
    texts_.TextSrcSpack = Fncts::LireFichier(spack);
    failed = Refuses(texts_.TextSrcSpack) || failed;
    if (failed) {
        Fncts::BeepNbT(1);
        texts_.TextDestSpack = ErrorMarker;
    } else {
        Reorder(*spack->Parent());
    }
    AffArea();
    EndRun();
}

void WinMain::EndRun()
{
    App::Current().EnableMenuBoutons(true);
    // A disabled text area has lost the focus that it got when the run began.
    TextAreaAff.SetFocus();
}

void WinMain::Reorder(const FolderItem& dossier)
{
    ReportSeries reports([this](const String& message, const String& explanation) { Tell(message, explanation); });
    CreerSpack(texts_, dossier,
               [&reports](const String& message, const String& explanation) { reports.Add(message, explanation); });
    reports.Finish();
}
