#include "tests/faults/FaultTest.h"

#include <csignal>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class Kills : public FaultTest {
protected:
    /// Acts in a process of its own, with a window, that dies in place of a call (0: of none). The result is whether it
    /// came to its end.
    bool InProcess(const std::function<int()>& act, int call)
    {
        const pid_t process = fork();
        if (process == 0) {
            OpenAndFill();
            const FileFaults faults(folder.Path(), {call, 0});
            _exit(act());
        }
        int status = 0;
        EXPECT_EQ(waitpid(process, &status, 0), process);
        EXPECT_TRUE(WIFEXITED(status) ? WEXITSTATUS(status) == 0 : WTERMSIG(status) == SIGKILL) << status;
        return WIFEXITED(status);
    }
};

TEST_F(Kills, OfASaveAndAQuitLeaveTheOldOrTheNew)
{
    const auto act = [this] {
        window->BtnSave_Pressed();
        window->Close();
        return app->Run();
    };
    EXPECT_TRUE(InProcess(act, 0));
    const std::string newPreferences = folder.Content(preferences);
    std::set<std::string> reached;
    bool ended = false;
    for (int call = 1; !ended && !HasFailure(); ++call) {
        ended = InProcess(act, call);
        const std::string content = folder.Content(target), settings = folder.Content(preferences);
        EXPECT_TRUE(content == fresh || (content == old && !ended)) << content;
        EXPECT_TRUE(content == old || Archives() == std::vector{old});
        EXPECT_TRUE(settings == oldPreferences || settings == newPreferences) << settings;
        reached.insert(settings != oldPreferences ? "all is new" : content == old ? "old" : "new");
    }
    EXPECT_EQ(reached.size(), 3U) << "calls go unseen";
}

TEST_F(Kills, OfATreatmentLeaveTheOldOrTheNew)
{
    const auto act = [this] { return Treat(), 0; };
    bool ended = false;
    for (int call = 1; !ended && !HasFailure(); ++call) {
        ended = InProcess(act, call);
        EXPECT_TRUE(folder.Content(one) == Lines('1') || (folder.Content(one) == "old" && !ended));
        const bool isNew = std::filesystem::is_regular_file(two) && folder.Content(two) == Lines('2');
        // Between the old folder and the new file there is the complete new one under another name.
        EXPECT_TRUE(isNew || (!ended && (folder.Content(two / "inner") == "old" ||
                                         folder.Content(in / ".tarnivel-1") == Lines('2'))));
        EXPECT_EQ(folder.Content(original), Lines('x'));
    }
}

} // namespace
