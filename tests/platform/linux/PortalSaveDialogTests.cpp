#include "platform/linux/PortalMock.hpp"
#include "platform/linux/PortalSaveDialog.hpp"
#include "platform/posix/FolderSaveDialog.hpp"
#include "support/TemporaryFolder.hpp"

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

constexpr PortalMock::Call saveFile{"org.freedesktop.portal.FileChooser", "SaveFile", "ssa{sv}"};

/// What the dialog answers within a moment; "none" for nothing.
std::string answerOf(SaveDialog& dialog) {
    std::string result = "none";
    dialog.ask("History.csv", [&result](const std::string& path) { result = path; });
    pass(400ms);
    return result;
}

TEST(PortalSaveDialog, ThePlaceThatThePersonChoseIsTold) {
    PortalMock mock(saveFile, 0, "{'uris': dbus.Array(['file:///tmp/My%20history.csv'], signature='s')}");
    FolderSaveDialog otherwise("/elsewhere");
    PortalSaveDialog dialog(mock.requests(), otherwise);
    EXPECT_EQ(answerOf(dialog), "/tmp/My history.csv");
}

TEST(PortalSaveDialog, APersonWhoCancelsIsNotAskedAnotherWay) {
    PortalMock mock(saveFile, 1);
    FolderSaveDialog otherwise("/elsewhere");
    PortalSaveDialog dialog(mock.requests(), otherwise);
    EXPECT_EQ(answerOf(dialog), "none");
}

TEST(PortalSaveDialog, AnAddressThatIsNoFileIsNone) {
    PortalMock mock(saveFile, 0, "{'uris': dbus.Array(['sftp://host/history.csv'], signature='s')}");
    FolderSaveDialog otherwise("/elsewhere");
    PortalSaveDialog dialog(mock.requests(), otherwise);
    EXPECT_EQ(answerOf(dialog), "none");
}

TEST(PortalSaveDialog, WithoutAPortalTheFileGoesElsewhere) {
    BusLink bus(QStringLiteral("unix:path=/nowhere"));
    PortalRequests requests(bus);
    FolderSaveDialog otherwise("/elsewhere");
    PortalSaveDialog dialog(requests, otherwise);
    EXPECT_EQ(answerOf(dialog), "/elsewhere/History.csv");
}

TEST(FolderSaveDialog, AFileThatIsThereIsNeverChosen) {
    const TemporaryFolder folder;
    FolderSaveDialog dialog(folder.path());
    EXPECT_EQ(answerOf(dialog), (folder / "History.csv").string());
    writeInPlace(folder / "History.csv", "one");
    writeInPlace(folder / "History 2.csv", "two");
    EXPECT_EQ(answerOf(dialog), (folder / "History 3.csv").string());
}

} // namespace
} // namespace kestrelfen
