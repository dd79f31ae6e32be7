#include "app/App.h"
#include "engine/CreerSpack.h"
#include "engine/SceneryText.h"
#include "localisation/Localisation.h"
#include "mainwindow/ReportSeries.h"
#include "mainwindow/Sentences.h"
#include "mainwindow/WinMain.h"
#include "support/Fncts.h"
#include "support/PathForm.h"
#include "support/Sounds.h"
#include "support/Status.h"
#include "support/TextFiles.h"
#include "support/TextHelpers.h"

namespace {

constexpr int fetchTimeout = 10;

/// Replaces `text` by its accepted form, or by an error text: adds then to `refusals` the sentence `why` with the
/// reason.
void Accept(String& text, const String& why, std::vector<String>& refusals)
{
    Acceptance acceptance = AcceptSceneryText(text);
    if (!acceptance.accepted) refusals.push_back(Fncts::Filled(why, {ReasonOfRefusal(text)}));
    text = std::move(acceptance.text);
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
        Fncts::Dire(Localisation::Dit_Arrete());
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

void WinMain::RunSuite(const String& model)
{
    SceneryTexts texts;
    texts.TextModel = model;
    std::vector<String> refusals;
    Accept(texts.TextModel, Localisation::Dit_ModeleRefuse(), refusals);
    if (model.empty()) refusals.back().append(U" (").append(Localisation::Dit_OffreModele()).append(U")");
    const std::optional<FolderItem> spack = Fncts::GetFitemAbsPath(TextFieldSpack.Text(), false);
    texts.TextSrcSpack = Fncts::LireFichier(spack);
    Accept(texts.TextSrcSpack, Localisation::Dit_SpackRefuse(), refusals);
    String sentence;
    if (refusals.empty()) {
        sentence = Reorder(texts, *spack->Parent());
    } else {
        Fncts::BeepNbT(1);
        texts.TextDestSpack = ErrorMarker;
        lastReport_ = sentence = Join(std::vector<StringView>(refusals.begin(), refusals.end()), U" ; ");
    }
    ShowRun(texts);
    EndRun();
    Fncts::Dire(sentence);
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

String WinMain::Reorder(SceneryTexts& texts, const FolderItem& dossier)
{
    using namespace Localisation;
    ReportSeries reports([this](const String& message, const String& explanation) { Tell(message, explanation); });
    CreerSpack(texts, dossier,
               [&reports](const String& message, const String& explanation) { reports.Add(message, explanation); });
    reports.Finish();
    lastReport_ = reports.All();
    if (BeginsWith(texts.TextDestSpack, ErrorMarker)) return Dit_Arrete();
    const auto lines = CountFields(texts.TextDestSpack, TxtEoF) - (texts.TextDestSpack.ends_with(TxtEoF) ? 1 : 0);
    const auto marked = std::ssize(texts.CoulDestSpack);
    return Fncts::Filled(Dit_Reordonne(), {Join({{Counted(lines, Nb_Lignes()), Counted(marked, Nb_SansEquiv()),
                                                  Counted(reports.Count(), Nb_Remarques())}},
                                                U", ")});
}
