#include "platform/LoginItemContract.hpp"
#include "platform/linux/AutostartLoginItem.hpp"
#include "platform/linux/ExecLine.hpp"
#include "platform/linux/KeyFile.hpp"
#include "platform/posix/PosixTextFileWriter.hpp"
#include "support/TemporaryFolder.hpp"

#include <sys/stat.h>

namespace kestrelfen {
namespace {

namespace fs = std::filesystem;

/// An autostart folder of a test's own, one of the system's, and a program to start.
class Session {
  public:
    Session() {
        fs::create_directories(folder_ / "system");
        writeInPlace(program(), "#!/bin/sh\n");
        ::chmod(program().c_str(), 0700);
    }

    AutostartLoginItem& loginItem() { return item_; }
    void settle() {}

    fs::path entry() const { return places_.folder / AutostartLoginItem::entryName; }
    fs::path systemEntry() const { return folder_ / "system" / AutostartLoginItem::entryName; }
    fs::path program() const { return places_.program; }

    void writeEntry(std::string_view text) {
        fs::create_directories(places_.folder);
        writeInPlace(entry(), text);
    }

    std::string value(const char* key) const {
        const auto values = keyFileGroup(contentOf(entry()), "Desktop Entry");
        const auto found = values.find(key);
        return found == values.end() ? "absent" : found->second;
    }

    std::string set(bool enabled) {
        std::string result;
        item_.setEnabled(enabled, [&result](const auto& error) { result = error.value_or("none"); });
        return result;
    }

  private:
    TemporaryFolder folder_;
    AutostartLoginItem::Places places_{
        folder_ / "config" / "autostart", {folder_ / "system"}, folder_ / "kestrelfen"};
    PosixTextFileWriter writer_;
    AutostartLoginItem item_{places_, writer_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Autostart, LoginItemContract, Session);

TEST(AutostartLoginItem, TheEntryStartsThisProgram) {
    Session session;
    EXPECT_EQ(session.set(true), "none");
    EXPECT_EQ(execWords(unescapedValue(session.value("Exec"))),
              std::vector<std::string>{session.program().string()});
    EXPECT_EQ(session.value("Type"), "Application");
    EXPECT_EQ(session.value("Name"), "Kestrelfen");
}

TEST(AutostartLoginItem, TheDesktopPassesOverTheEntryOnceTheProgramHasGone) {
    Session session;
    session.set(true);
    EXPECT_EQ(unescapedValue(session.value("TryExec")), session.program().string());
    fs::remove(session.program());
    EXPECT_FALSE(session.loginItem().isEnabled());
}

TEST(AutostartLoginItem, AnEntryOnAConditionThatFailsIsMadeAnew) {
    Session session;
    session.writeEntry("[Desktop Entry]\nTryExec=/nowhere/kestrelfen\nExec=" + session.program().string() +
                       "\n");
    EXPECT_FALSE(session.loginItem().isEnabled());
    EXPECT_EQ(session.set(true), "none");
    EXPECT_TRUE(session.loginItem().isEnabled());
}

TEST(AutostartLoginItem, NothingStaysBehindWhenItIsDisabled) {
    Session session;
    session.set(true);
    session.set(false);
    EXPECT_FALSE(fs::exists(session.entry()));
}

TEST(AutostartLoginItem, APathWithSignsOfItsOwnIsQuoted) {
    const TemporaryFolder folder;
    const fs::path program = folder / R"(100% "$pe`ci\al" one)";
    writeInPlace(program, "#!/bin/sh\n");
    ::chmod(program.c_str(), 0700);
    PosixTextFileWriter writer;
    AutostartLoginItem item({folder / "autostart", {}, program}, writer);
    item.setEnabled(true, [](const auto& error) { EXPECT_EQ(error, std::nullopt); });
    const auto values =
        keyFileGroup(contentOf(folder / "autostart" / AutostartLoginItem::entryName), "Desktop Entry");
    EXPECT_EQ(execWords(unescapedValue(values.at("Exec"))), std::vector<std::string>{program.string()});
    EXPECT_EQ(unescapedValue(values.at("TryExec")), program.string());
    EXPECT_TRUE(item.isEnabled());
}

TEST(AutostartLoginItem, ADesktopThatSwitchedItOffIsBelieved) {
    Session session;
    session.set(true);
    const std::string own = contentOf(session.entry());
    session.writeEntry(own + "Hidden=true\n");
    EXPECT_FALSE(session.loginItem().isEnabled());
    std::string off = own;
    off.replace(off.find("enabled=true"), 12, "enabled=false");
    session.writeEntry(off);
    EXPECT_FALSE(session.loginItem().isEnabled());
    session.set(true);
    EXPECT_TRUE(session.loginItem().isEnabled());
}

TEST(AutostartLoginItem, WhatThePersonWroteIntoTheEntryIsKept) {
    Session session;
    const std::string own = "# mine\n[Desktop Entry]\nName=Breaks\nExec=" + session.program().string() +
                            " \nX-GNOME-Autostart-Delay=30\n[Desktop Action x]\nHidden=false\n";
    session.writeEntry(own);
    EXPECT_TRUE(session.loginItem().isEnabled());
    EXPECT_EQ(session.set(false), "none");
    EXPECT_FALSE(session.loginItem().isEnabled());
    EXPECT_EQ(session.value("X-GNOME-Autostart-Delay"), "30");
    EXPECT_EQ(session.set(true), "none");
    EXPECT_EQ(contentOf(session.entry()), own);
}

TEST(AutostartLoginItem, AnEntryOfAProgramThatHasGoneStartsNothingAndIsMadeAnew) {
    Session session;
    session.writeEntry("[Desktop Entry]\nExec=/nowhere/kestrelfen\n");
    EXPECT_FALSE(session.loginItem().isEnabled());
    EXPECT_EQ(session.set(true), "none");
    EXPECT_TRUE(session.loginItem().isEnabled());
}

TEST(AutostartLoginItem, TheSystemsEntryHoldsUntilThePersonsGoesBeforeIt) {
    Session session;
    writeInPlace(session.systemEntry(), "[Desktop Entry]\nExec=" + session.program().string() + "\n");
    EXPECT_TRUE(session.loginItem().isEnabled());
    EXPECT_EQ(session.set(false), "none");
    EXPECT_FALSE(session.loginItem().isEnabled());
    EXPECT_EQ(session.value("Hidden"), "true");
    EXPECT_EQ(session.set(true), "none");
    EXPECT_TRUE(session.loginItem().isEnabled());
}

TEST(AutostartLoginItem, AFolderThatCannotBeMadeIsTold) {
    const TemporaryFolder folder;
    writeInPlace(folder / "config", "a file");
    PosixTextFileWriter writer;
    AutostartLoginItem item({folder / "config" / "autostart", {}, "/bin/sh"}, writer);
    item.setEnabled(true, [](const auto& error) { EXPECT_EQ(error, "Not a directory"); });
    EXPECT_FALSE(item.isEnabled());
}

} // namespace
} // namespace kestrelfen
