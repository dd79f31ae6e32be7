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
    /// Saves and quits as the program does, in a process of its own that dies in place of a call (0: of none) or after
    /// some time, and checks what is on disk then. The result is whether it came to its end.
    bool SaveAndQuit(int call, std::optional<Seconds> time)
    {
        const pid_t process = fork();
        if (process == 0) {
            OpenAndFill();
            const FileFaults faults(folder.Path(), {call, 0});
            std::raise(SIGSTOP);
            window->BtnSave_Pressed();
            window->Close();
            _exit(app->Run());
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
        CheckFiles(WIFEXITED(status));
        return WIFEXITED(status);
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

} // namespace
