#pragma once

#include "platform/linux/LinuxPrograms.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace kestrelfen {

/// A process of the fixture's own /proc.
struct TestProcess {
    std::int32_t number = 0;
    std::string command = "program";
    std::int32_t parent = 1;
    std::uint64_t startTime = 100;
    std::string executable = {};
    std::string controlGroup = {};
    std::string environment = {};
    std::string sandbox = {};
};

/// A computer with the entries and processes that a test gives it.
class ProgramFixture : public testing::Test {
  protected:
    std::filesystem::path install(const std::string& id, std::string_view lines) {
        const std::filesystem::path file = entries() / (id + ".desktop");
        std::filesystem::create_directories(file.parent_path());
        writeInPlace(file, "[Desktop Entry]\nType=Application\n" + std::string(lines));
        return file;
    }

    void start(const TestProcess& process) {
        const std::filesystem::path folder = folder_ / "proc" / std::to_string(process.number);
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder / "root");
        writeInPlace(folder / "stat", statusOf(process));
        writeInPlace(folder / "cgroup", "0::" + process.controlGroup + "\n");
        writeInPlace(folder / "environ", process.environment);
        if (!process.executable.empty()) {
            std::filesystem::create_symlink(process.executable, folder / "exe");
        }
        if (!process.sandbox.empty()) {
            writeInPlace(folder / "root/.flatpak-info", process.sandbox);
        }
    }

    static WindowClues windowOf(std::int32_t process, std::string className = {}) {
        return {process, std::move(className), {}, {}};
    }

    std::filesystem::path entries() const { return folder_ / "applications"; }

    const TemporaryFolder folder_;
    LinuxPrograms programs_{{folder_ / "proc", {folder_ / "applications"}, "de_AT.UTF-8"}};

  private:
    static std::string statusOf(const TestProcess& process) {
        return std::to_string(process.number) + " (" + process.command + ") S " +
               std::to_string(process.parent) + " 1 1 0 -1 0 0 0 0 0 0 0 0 0 20 0 1 0 " +
               std::to_string(process.startTime) + " 0 0\n";
    }
};

} // namespace kestrelfen
