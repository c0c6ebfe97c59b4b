#include "platform/CalendarPrivateEtc.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kestrelfen {

namespace {

enum ExitCode { allHeld = 0, someFailed = 1, notPermitted = 77 };

bool enterView(const std::string& directory) {
    const bool isApart = unshare(CLONE_NEWNS) == 0 || unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0;
    return isApart && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount(directory.c_str(), "/etc", nullptr, MS_BIND, nullptr) == 0;
}

ExitCode runHere(const std::string& directory, const std::function<void()>& body) {
    if (!enterView(directory)) {
        return notPermitted;
    }
    body();
    return testing::Test::HasFailure() ? someFailed : allHeld;
}

} // namespace

std::optional<bool> runWithEtc(const std::string& directory, const std::function<void()>& body) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        const ExitCode code = runHere(directory, body);
        std::fflush(nullptr);
        _exit(code);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) {
        return false;
    }
    if (WIFEXITED(status) && WEXITSTATUS(status) == notPermitted) {
        return std::nullopt;
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == allHeld;
}

} // namespace kestrelfen
