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
    if (DrapProposer) {
        DrapProposer = false;
    } else if (Fncts::DrapMenu) {
        TextAreaAff.SetFocus();
        App::Current().EnableMenuBoutons(false);
        TimerDebRun.SetRunMode(Timer::RunModes::Single);
    } else {
        TimerDebRun.SetRunMode(Timer::RunModes::Off);
        URLCnctLirePage.Disconnect();
        SceneryTexts nothing;
        // Stopped before it began, a run has not touched the source.
        if (!DrapRun) nothing.TextSrcSpack = Document(rowSource).Text();
        ShowRun(nothing);
        EndRun();
    }
}

void WinMain::TimerDebRun_Action()
{
    DrapRun = true;
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
    SceneryTexts texts;
    texts.TextModel = std::move(model);
    bool failed = Refuses(texts.TextModel);
    const std::optional<FolderItem> spack = Fncts::GetFitemAbsPath(TextFieldSpack.Text(), false);
    texts.TextSrcSpack = Fncts::LireFichier(spack);
    failed = Refuses(texts.TextSrcSpack) || failed;
    if (failed) {
        Fncts::BeepNbT(1);
        texts.TextDestSpack = ErrorMarker;
    } else {
        Reorder(texts, *spack->Parent());
    }
    ShowRun(texts);
    EndRun();
}

void WinMain::EndRun()
{
    DrapRun = false;
    App::Current().EnableMenuBoutons(true);
    // A disabled text area has lost the focus that it got when the run began.
    TextAreaAff.SetFocus();
}

void WinMain::InRun(const std::function<void()>& step)
{
    try {
        step();
    } catch (...) {
        EndRun();
        throw;
    }
}

void WinMain::Reorder(SceneryTexts& texts, const FolderItem& dossier)
{
    ReportSeries reports([this](const String& message, const String& explanation) { Tell(message, explanation); });
    CreerSpack(texts, dossier,
               [&reports](const String& message, const String& explanation) { reports.Add(message, explanation); });
    reports.Finish();
}
