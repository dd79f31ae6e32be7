#include "specialA/WinSpecA.h"
#include "tests/faults/FaultTest.h"

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using Seconds = std::chrono::duration<double>;

class Kills : public FaultTest {
protected:
    /// Acts in a process of its own, with a window, that dies in place of a call (0: of none) or after some time. The
    /// result is whether it came to its end.
    bool InProcess(const std::function<int()>& act, int call, std::optional<Seconds> time = {})
    {
        const pid_t process = fork();
        if (process == 0) {
            OpenAndFill();
            const FileFaults faults(folder.Path(), {call, 0});
            std::raise(SIGSTOP);
            _exit(act());
        }
        int status = 0;
        EXPECT_TRUE(waitpid(process, &status, WUNTRACED) == process && WIFSTOPPED(status)) << status;
        kill(process, SIGCONT);
        if (time) {
            std::this_thread::sleep_for(*time);
            kill(process, SIGKILL);
        }
        EXPECT_EQ(waitpid(process, &status, 0), process);
        EXPECT_TRUE(WIFEXITED(status) ? WEXITSTATUS(status) == 0 : WTERMSIG(status) == SIGKILL) << status;
        return WIFEXITED(status);
    }

    /// Saves and quits as the program does, and checks what is on disk then.
    bool SaveAndQuit(int call, std::optional<Seconds> time)
    {
        const auto act = [this] {
            window->BtnSave_Pressed();
            window->Close();
            return app->Run();
        };
        const bool ended = InProcess(act, call, time);
        CheckFiles(ended);
        return ended;
    }

    void CheckFiles(bool ended)
    {
        const std::string content = folder.Content(target), settings = folder.Content(preferences);
        if (ended) newPreferences = settings;
        EXPECT_TRUE(content == fresh || (content == old && !ended)) << content;
        EXPECT_TRUE(content == old || Archives() == std::vector{old});
        EXPECT_TRUE(settings == oldPreferences || settings == newPreferences) << settings;
        ++reached[settings != oldPreferences ? "all is new" : content == old ? "old" : "new"];
    }

    std::string newPreferences;
    /// How often the files were found in which state.
    std::map<std::string, int> reached;
};

TEST_F(Kills, InPlaceOfAnyCallLeaveTheOldOrTheNew)
{
    SaveAndQuit(0, {});
    for (int call = 1; !HasFailure() && !SaveAndQuit(call, {}); ++call) {
    }
    EXPECT_EQ(reached.size(), 3U) << "calls go unseen";
}

TEST_F(Kills, AtRandomMomentsLeaveTheOldOrTheNew)
{
    SaveAndQuit(0, {});
    std::mt19937 random; // the same numbers each time
    std::uniform_real_distribution<> part(0.5, 1.5);
    Seconds middle{0.005};
    for (int kill = 0; kill < 100 && !HasFailure(); ++kill) {
        const int early = reached["old"];
        SaveAndQuit(0, middle * part(random));
        // Half of them early, half of them late, however fast the machine is.
        middle *= reached["old"] > early ? 1.1 : 0.9;
    }
}

TEST_F(Kills, OfATreatmentLeaveTheOldOrTheNew)
{
    const auto in = folder.Path() / "in";
    before = {{in / "original.txt", Lines('x')}, {in / "one", "old"}, {in / "two/inner", "old"}};
    const auto act = [&] {
        app->TabSpecAorg = {U"", U"x"};
        app->TabSpecAdest1 = {U"one", U"1"};
        app->TabSpecAdest2 = {U"two", U"2"};
        app->PathSpecA = Fncts::AbsPath_f(FolderItem(in / "original.txt"), true);
        WinSpecA special(*window, window->SegButtSpecA, window->TimerQuit);
        special.Show();
        probe.Answers = {1, 3, 3, 3};
        special.PushButtTrait_Pressed();
        return 0;
    };
    bool ended = false;
    for (int call = 1; !ended && !HasFailure(); ++call) {
        ended = InProcess(act, call);
        const std::string one = folder.Content(in / "one");
        EXPECT_TRUE(one == Lines('1') || (one == "old" && !ended));
        const bool two = std::filesystem::is_regular_file(in / "two") && folder.Content(in / "two") == Lines('2');
        // Between the old folder and the new file there is the complete new one under another name.
        EXPECT_TRUE(two || (!ended && (folder.Content(in / "two/inner") == "old" ||
                                       folder.Content(in / ".tarnivel-1") == Lines('2'))));
        EXPECT_EQ(folder.Content(in / "original.txt"), Lines('x'));
    }
}

} // namespace
