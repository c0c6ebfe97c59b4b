#include "PrivateFolder.hpp"
#include "SimulatorRun.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <unistd.h>

namespace kestrelfen {
namespace {

namespace fs = std::filesystem;

/// How many folders lie about that a process made for a store of its own.
int foldersOf(pid_t process) {
    int count = 0;
    for (const char* const parent : {"/dev/shm", "/tmp"}) {
        std::error_code ignored;
        for (const auto& entry : fs::directory_iterator(parent, ignored)) {
            const std::string name = entry.path().filename().string();
            count += name.starts_with("kestrelfen-sim-" + std::to_string(process) + "-") ? 1 : 0;
        }
    }
    return count;
}

/// How many folders a run of the scenario leaves behind.
int leftBy(std::string_view scenario, int status) {
    const SimulatorRun run = simulate(scenario);
    EXPECT_EQ(run.status, status) << run.errors;
    return foldersOf(run.process);
}

TEST(PrivateStore, IsFreshInEachRun) {
    EXPECT_EQ(simulate("launch\nexpect tasks rows.count 0\ntask add Read\n").status, 0);
    EXPECT_EQ(simulate("launch\nexpect tasks rows.count 0\n").status, 0);
}

TEST(PrivateStore, OutlivesTheProgramWithinARun) {
    EXPECT_EQ(simulate("launch\ntask add Read\nkill\nlaunch\nexpect tasks rows.0.title Read\nquit\n"
                       "launch\nexpect tasks rows.0.title Read\n")
                  .errors,
              "");
}

TEST(PrivateStore, IsRemovedAtTheEnd) {
    EXPECT_EQ(leftBy("launch\ntask add Read\nquit\n", 0), 0);
    EXPECT_EQ(leftBy("launch\ntask add Read\nkill\n", 0), 0);
    EXPECT_EQ(leftBy("launch\ntask add Read\n", 0), 0);
    EXPECT_EQ(leftBy("show prefs\n", 0), 0);
}

TEST(PrivateStore, IsRemovedAtABadEnd) {
    EXPECT_EQ(leftBy("launch\ntask add Read\nlunch\n", 2), 0);
    EXPECT_EQ(leftBy("launch\ntask add Read\nshow apps -1\n", 3), 0);
}

/// With what the database keeps beside it.
void fill(const PrivateFolder& folder) {
    for (const char* const ending : {"", "-wal", "-shm", "-journal"}) {
        writeInPlace(folder.storeFile().string() + ending, "x");
    }
}

TEST(PrivateFolder, IsGoneWithItsStore) {
    fs::path place;
    {
        const PrivateFolder folder;
        fill(folder);
        place = folder.storeFile().parent_path();
        EXPECT_EQ(foldersOf(getpid()), 1);
        EXPECT_EQ(fs::status(place).permissions(), fs::perms::owner_all);
    }
    EXPECT_FALSE(fs::exists(place));
    EXPECT_EQ(foldersOf(getpid()), 0);
}

TEST(PrivateFolder, CanBeRemovedAtOnce) {
    const PrivateFolder folder;
    fill(folder);
    PrivateFolder::removeAtOnce();
    EXPECT_FALSE(fs::exists(folder.storeFile().parent_path()));
}

} // namespace
} // namespace kestrelfen
