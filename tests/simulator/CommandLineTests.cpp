#include "SimulatorRun.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

constexpr const char* usage = "usage: kestrelfen-sim [--store FILE] [SCENARIO]\n";

/// A folder with one scenario in it.
class CommandLine : public testing::Test {
  protected:
    std::string scenario(std::string_view text) {
        writeInPlace(folder / "day.scn", text);
        return (folder / "day.scn").string();
    }

    TemporaryFolder folder;
};

TEST_F(CommandLine, RunsAFile) {
    const SimulatorRun run = runSimulator({scenario("show prefs\n")}, "show engine\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, "{\"show\":\"prefs\",\"values\":{}}\n");
    EXPECT_EQ(run.errors, "");
}

TEST_F(CommandLine, RunsStandardInputWithoutAScenario) {
    EXPECT_EQ(runSimulator({}, "show prefs\n").output, "{\"show\":\"prefs\",\"values\":{}}\n");
}

TEST_F(CommandLine, RunsStandardInputForAHyphen) {
    EXPECT_EQ(runSimulator({"-"}, "show prefs\n").output, "{\"show\":\"prefs\",\"values\":{}}\n");
}

TEST_F(CommandLine, ErrorsNameTheScenarioAsItWasGiven) {
    const std::string path = scenario("\nlunch\n");
    EXPECT_EQ(runSimulator({path}).errors, path + ":2: \"lunch\" is no command\n");
    EXPECT_EQ(runSimulator({}, "lunch\n").errors, "-:1: \"lunch\" is no command\n");
    EXPECT_EQ(runSimulator({"-"}, "lunch\n").errors, "-:1: \"lunch\" is no command\n");
}

TEST_F(CommandLine, EmptyFileIsAnEmptyScenario) {
    const SimulatorRun run = runSimulator({scenario("")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output + run.errors, "");
    EXPECT_EQ(runSimulator({"/dev/null"}).status, 0);
    EXPECT_EQ(runSimulator({}).status, 0);
}

TEST_F(CommandLine, UnreadableFileIsMalformed) {
    const std::string path = (folder / "none.scn").string();
    const SimulatorRun run = runSimulator({path});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "kestrelfen-sim: " + path + " cannot be read\n" + usage);
}

TEST_F(CommandLine, FolderIsMalformed) {
    const SimulatorRun run = runSimulator({folder.path().string()});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, "kestrelfen-sim: " + folder.path().string() + " cannot be read\n" + usage);
}

TEST_F(CommandLine, EmptyNameIsMalformed) {
    EXPECT_EQ(runSimulator({""}, "show prefs\n").status, 2);
}

TEST_F(CommandLine, SecondScenarioIsMalformed) {
    const std::string path = scenario("show prefs\n");
    const SimulatorRun run = runSimulator({path, path});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, std::string("kestrelfen-sim: more than one scenario\n") + usage);
    EXPECT_EQ(runSimulator({"-", "-"}).status, 2);
}

TEST_F(CommandLine, UnknownOptionIsMalformed) {
    const SimulatorRun run = runSimulator({"--verbose"}, "show prefs\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, std::string("kestrelfen-sim: unknown option --verbose\n") + usage);
}

TEST_F(CommandLine, StoreIsKeptInTheFileThatIsNamed) {
    const std::string store = (folder / "day.store").string();
    const std::string path = scenario("launch\ntask add Read\nexpect tasks rows.count 1\nkill\n");
    EXPECT_EQ(runSimulator({"--store", store, path}).status, 0);
    EXPECT_TRUE(std::filesystem::exists(store));
    EXPECT_EQ(runSimulator({path, "--store", store}).errors,
              path + ":3: expected tasks rows.count 1, got 2\n");
    EXPECT_EQ(runSimulator({"--store", store}, "launch\nexpect tasks rows.1.title Read\n").status, 0);
    EXPECT_EQ(runSimulator({"--store", store, "-"}, "launch\nexpect tasks rows.1.title Read\n").status, 0);
}

TEST_F(CommandLine, StoreThatCannotBeOpenedLeavesTheProgramWithoutOne) {
    const SimulatorRun run = runSimulator({"--store", folder.path().string()},
                                          "launch\nfinish-onboarding\nrun 60\nexpect day activeSeconds 0\n"
                                          "expect-event log level info\nexport f\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "{\"note\":\"not available\"}\n");
}

TEST_F(CommandLine, StoreIsMadeByTheLaunchOnly) {
    const std::string store = (folder / "day.store").string();
    EXPECT_EQ(runSimulator({"--store", store}, "show prefs\n").status, 0);
    EXPECT_FALSE(std::filesystem::exists(store));
}

TEST_F(CommandLine, StoreNeedsOneFile) {
    const std::string path = scenario("show prefs\n");
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"--store"}, {path, "--store"}, {"--store", "", path}}) {
        const SimulatorRun run = runSimulator(arguments);
        EXPECT_EQ(run.status, 2);
        EXPECT_EQ(run.output, "");
        EXPECT_EQ(run.errors, std::string("kestrelfen-sim: --store needs a file\n") + usage);
    }
    const SimulatorRun run = runSimulator({"--store", "a", "--store", "b", path});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, std::string("kestrelfen-sim: more than one store\n") + usage);
    EXPECT_EQ(runSimulator({"--store=a", path}).errors,
              std::string("kestrelfen-sim: unknown option --store=a\n") + usage);
}

TEST_F(CommandLine, LastLineNeedsNoLineFeed) {
    const SimulatorRun run = simulate("pref a int 1\nexpect prefs values.a 2");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "-:2: expected prefs values.a 2, got 1\n");
}

TEST_F(CommandLine, LineMayBeVeryLong) {
    const std::string text(1'000'000, 'x');
    const SimulatorRun run = simulate("pref a string " + text + "\nexpect prefs values.a " + text + "y\n");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "-:2: expected prefs values.a " + text + "y, got " + text + "\n");
}

TEST_F(CommandLine, MalformedLineEndsTheRunWithStatusTwo) {
    const SimulatorRun run = simulate("show prefs\nshow what\nshow prefs\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "{\"show\":\"prefs\",\"values\":{}}\n");
    EXPECT_EQ(run.errors, "-:2: \"what\" is no reading\n");
}

TEST_F(CommandLine, MalformedLineBeatsAFailedExpectation) {
    const SimulatorRun run = simulate("expect prefs values.a 1\nlunch\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, "-:1: expected prefs values.a 1, got null\n-:2: \"lunch\" is no command\n");
}

TEST_F(CommandLine, BothStreamsFollowTheOrderOfTheLines) {
    const std::string shown = "{\"show\":\"prefs\",\"values\":{}}\n";
    EXPECT_EQ(everythingWritten("show prefs\nexpect prefs a 1\nshow prefs\nlunch\n"),
              shown + "-:2: expected prefs a 1, got null\n" + shown + "-:4: \"lunch\" is no command\n");
}

TEST_F(CommandLine, FaultOfTheProgramEndsTheRunWithStatusThree) {
    const SimulatorRun run = simulate("pref hasCompletedOnboarding bool true\n"
                                      "pref workIntervalSeconds double 1e300\n"
                                      "events on\n"
                                      "expect prefs values.none 1\n"
                                      "launch\n"
                                      "show prefs\n");
    EXPECT_EQ(run.status, 3);
    const auto lines = linesOf(run.output);
    ASSERT_EQ(lines.size(), 1U) << run.output;
    EXPECT_EQ(lines.front(), R"({"event":"log","at":"2026-03-09T08:00:00.000Z","level":"info",)"
                             R"("category":"StatusItem","text":"right click enabled on the status item"})");
    EXPECT_EQ(run.errors, "-:4: expected prefs values.none 1, got null\n"
                          "kestrelfen: fault: a number of seconds that cannot be written\n");
}

} // namespace
} // namespace kestrelfen
