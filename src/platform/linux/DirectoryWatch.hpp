#pragma once

#include <QSocketNotifier>
#include <QTimer>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <system_error>

namespace kestrelfen {

/// Tells of changes in one folder: files that came, went, were renamed, written or given other permissions.
/// While the folder does not exist it waits for it. Lives on the main thread, in its event loop; costs
/// nothing while nothing changes.
class DirectoryWatch {
  public:
    /// `changed` is called some 50 ms after a change, once for all that happen meanwhile. A file that is
    /// written in place counts as changed when its writer closes it. The watch must not be destroyed in the
    /// call.
    DirectoryWatch(std::filesystem::path folder, std::function<void()> changed);
    ~DirectoryWatch();

    DirectoryWatch(const DirectoryWatch&) = delete;
    DirectoryWatch& operator=(const DirectoryWatch&) = delete;

    /// Why nothing can be watched; no error when all is well.
    std::error_code failure() const { return failure_; }

  private:
    void arm();
    std::filesystem::path watchNearest();
    bool watch(const std::filesystem::path& place);
    void readEvents();
    void note(std::uint32_t mask);
    void tell();

    std::filesystem::path folder_;
    std::function<void()> changed_;
    int inotify_ = -1;
    /// The kernel's number of the one watch, and whether that is on the folder itself or on an ancestor.
    int descriptor_ = -1;
    bool isOnFolder_ = false;
    std::error_code failure_;
    QTimer pause_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace kestrelfen
