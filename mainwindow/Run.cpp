#include "app/App.h"
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

namespace {

constexpr int fetchTimeout = 10;

/// What is told of texts that are none as the program writes them, which the box of stars alone doesn't explain.
String FormsOf(std::initializer_list<std::pair<String, String>> namesAndForms)
{
    String sentences;
    for (const auto& [name, form] : namesAndForms)
        if (!form.empty())
            sentences +=
                (sentences.empty() ? U". " : U" ") + Localisation::Filled(Localisation::Txt_FormeTexte(), {name, form});
    return sentences;
}

/// Replaces the text by its accepted form, or by an error text: adds then to `refusals` the sentence `why` with the
/// reasons.
void Accept(Fncts::Reading& reading, const String& why, std::vector<String>& refusals)
{
    Acceptance acceptance = AcceptSceneryText(reading.text);
    if (!acceptance.accepted) refusals.push_back(Localisation::Filled(why, {ReasonOfRefusal(reading.text)}));
    if (!reading.failure.empty()) refusals.back().append(U" (").append(reading.failure).append(U")");
    reading.text = std::move(acceptance.text);
}

} // namespace

void WinMain::BindRun()
{
    BtnRun.Pressed = [this] { BtnRun_Pressed(); };
    TimerDebRun.Action = [this] { InRun([&] { TimerDebRun_Action(); }); };
    URLCnctLirePage.AllowCertificateValidation = false;
    // An error page is content like any other: the header test refuses it.
    URLCnctLirePage.ContentReceived = [this](const String& /*url*/, Int64 /*httpStatus*/, const Bytes& content) {
        InRun([&] { RunSuite(Fncts::TextOfBytes(content)); });
    };
    URLCnctLirePage.Error = [this](const RuntimeException& error) {
        InRun([&] { RunSuite({.text = String(ErrorMarker) + ToText(error.ErrorNumber) + U" " + WhyNoAnswer(error)}); });
    };
}

void WinMain::BtnRun_Pressed()
{
    if (DrapProposer) {
        DrapProposer = false;
    } else if (Fncts::DrapMenu) {
        const auto model = Fncts::GetFitemAbsPath(TextFieldMod1.Text(), false);
        const bool isOnScreenOnly = Document(rowModel).Modified() && !(model && model->Exists());
        if (RadGrpSrc.SelectedIndex() == 0 && isOnScreenOnly)
            return Fncts::Refuser(Localisation::Dit_ModelePasEnregistre());
        TextAreaAff.SetFocus();
        Fncts::Dire({}); // what was said of an earlier run
        run_ = RunState::Asked;
        App::Current().EnableMenuBoutons(false);
        TimerDebRun.SetRunMode(Timer::RunModes::Single);
    } else if (run_ != RunState::None) {
        TimerDebRun.SetRunMode(Timer::RunModes::Off);
        URLCnctLirePage.Disconnect();
        ShowRun({}, {rowModel, rowDest});
        // Stopped before it began, a run has not touched the source.
        if (run_ == RunState::Begun) ShowRun({}, {rowSource});
        EndRun();
        Fncts::Dire(Localisation::Dit_Arrete());
    } else {
        Fncts::Refuser(Localisation::Dit_Occupe()); // by a treatment, which has a button of its own
    }
}

void WinMain::TimerDebRun_Action()
{
    run_ = RunState::Begun;
    ++runs_;
    if (RadGrpSrc.SelectedIndex() == 0) return RunSuite(ReadFile(Fncts::GetFitemAbsPath(TextFieldMod1.Text(), false)));
    const String url = TextFieldMod2.Text();
    if (BeginsWith(url, U"http://") || BeginsWith(url, U"https://"))
        return URLCnctLirePage.Send(U"Get", url, fetchTimeout);
    Tell(Localisation::Txt_UrlDoitCommencer());
    RunSuite({.failure = Localisation::Txt_UrlDoitCommencer()});
}

Fncts::Reading WinMain::ReadFile(const std::optional<FolderItem>& file)
{
    Fncts::Reading reading = Fncts::LireFichier(file);
    if (!file) return reading;
    const auto known = asRead_.try_emplace(file->Path(), Held{reading.fingerprint}).first;
    if (known->second.fingerprint != reading.fingerprint) known->second = {reading.fingerprint, runs_};
    return reading;
}

void WinMain::RunSuite(Fncts::Reading model)
{
    const DesktopTextField& field = RadGrpSrc.SelectedIndex() == 0 ? TextFieldMod1 : TextFieldMod2;
    const bool modelIsCleaned = model.cleanedLines > 0;
    if (modelIsCleaned) Tell(Fncts::CleaningReport(model, field.Text()));
    const bool isMissing = model.text.empty() || BeginsWith(model.text, ErrorMarker);
    std::vector<String> refusals;
    Accept(model, Localisation::Dit_ModeleRefuse(), refusals);
    if (!refusals.empty()) refusals.back() += UsedSource();
    if (isMissing) refusals.push_back(Localisation::Dit_OffreModele());
    const std::optional<FolderItem> spack = Fncts::GetFitemAbsPath(TextFieldSpack.Text(), false);
    Fncts::Reading source = ReadFile(spack);
    const bool sourceIsCleaned = source.cleanedLines > 0;
    if (sourceIsCleaned) Tell(Fncts::CleaningReport(source, TextFieldSpack.Text()));
    Accept(source, Localisation::Dit_SpackRefuse(), refusals);
    SceneryTexts texts{std::move(model.text), std::move(source.text), {}, {}, {}};
    String sentence;
    if (refusals.empty()) {
        sentence = Reorder(texts, *spack->Parent());
    } else {
        Fncts::BeepNbT(1);
        texts.TextDestSpack = ErrorMarker;
        lastReport_ = sentence = Join(std::vector<StringView>(refusals.begin(), refusals.end()), U" ; ");
    }
    if (DesktopApplication::EndRequested()) return; // nobody sees it any more
    ShowRun(texts, {rowModel, rowSource, rowDest}, modelIsCleaned, sourceIsCleaned);
    EndRun();
    Fncts::Dire(sentence + FormsOf({{field.Text(), model.form}, {TextFieldSpack.Text(), source.form}}));
}

void WinMain::EndRun()
{
    run_ = RunState::None;
    App::Current().EnableMenuBoutons(true);
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

String WinMain::UsedSource() const
{
    using namespace Localisation;
    return U" (" + (RadGrpSrc.SelectedIndex() == 0 ? RdButtSourceA() : RdButtSourceB()) + U")";
}

String WinMain::Reorder(SceneryTexts& texts, const FolderItem& dossier)
{
    using namespace Localisation;
    ReportSeries reports([this](const String& message, const String& explanation) { Tell(message, explanation); });
    CreerSpack(texts, dossier, std::bind_front(&ReportSeries::Add, &reports));
    reports.Finish();
    lastReport_ = reports.All();
    if (BeginsWith(texts.TextDestSpack, ErrorMarker))
        return Filled(Dit_ModeleRefuse(), {OnOneLine(lastReport_)}) + UsedSource();
    const auto lines = CountFields(texts.TextDestSpack, TxtEoF) - 1; // each has its line end
    const auto marked = std::ssize(texts.CoulDestSpack);
    return Filled(Dit_Reordonne(), {Join({{Counted(lines, Nb_Lignes()), Counted(marked, Nb_SansEquiv()),
                                           Counted(reports.Count(), Nb_Remarques())}},
                                         U", ")}) +
           UsedSource();
}
