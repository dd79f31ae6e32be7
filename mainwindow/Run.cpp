#include "app/App.h"
#include "engine/CreerSpack.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "mainwindow/ReportSeries.h"
#include "mainwindow/WinMain.h"
#include "support/DialogHelpers.h"
#include "support/Fncts.h"
#include "support/PathForm.h"
#include "support/Sounds.h"
#include "support/TextFiles.h"

namespace {

constexpr int fetchTimeout = 10;

void SetIdle(bool idle)
{
    Fncts::DrapMenu = idle;
    App::Current().EnableMenuBoutons();
}

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
        SetIdle(false);
        TimerDebRun.SetRunMode(Timer::RunModes::Single);
    } else {
        URLCnctLirePage.Disconnect();
        InitVars(true, false);
        AffArea();
        EndRun();
    }
}

void WinMain::TimerDebRun_Action()
{
    InitVars(true, true);
    if (RadGrpSrc.SelectedIndex() == 0) {
        texts_.TextModel = Fncts::LireFichier(Fncts::GetFitemAbsPath(TextFieldMod1.Text(), false));
        return RunSuite();
    }
    const String url = TextFieldMod2.Text();
    if (BeginsWith(url, U"http://") || BeginsWith(url, U"https://"))
        return URLCnctLirePage.Send(U"Get", url, fetchTimeout);
    Fncts::BeepNbT(1);
    Fncts::MyDialogBox(
        {.message = Localisation::Txt_UrlDoitCommencer(), .btnAction = Localisation::Btn_Ok(), .win = this});
    RunSuite();
}

void WinMain::URLCnctLirePage_ContentReceived(const String& /*url*/, Int64 /*httpStatus*/, const Bytes& content)
{
    // An error page is content like any other: the header test refuses it.
    texts_.TextModel = Fncts::TextOfBytes(content);
    RunSuite();
}

void WinMain::URLCnctLirePage_Error(const RuntimeException& error)
{
    texts_.TextModel = String(ErrorMarker) + ToText(error.ErrorNumber) + U" " + error.Message;
    RunSuite();
}

void WinMain::RunSuite()
{
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
    SetIdle(true);
    // A disabled text area has lost the focus that it got when the run began.
    TextAreaAff.SetFocus();
}

void WinMain::Reorder(const FolderItem& dossier)
{
    ReportSeries reports([this](const String& message, const String& explanation) {
        Fncts::BeepNbT(1);
        Fncts::MyDialogBox(
            {.message = message, .explanation = explanation, .btnAction = Localisation::Btn_Ok(), .win = this});
    });
    CreerSpack(texts_, dossier,
               [&reports](const String& message, const String& explanation) { reports.Add(message, explanation); });
    reports.Finish();
}
