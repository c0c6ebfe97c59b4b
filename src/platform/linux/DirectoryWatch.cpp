#include "platform/linux/DirectoryWatch.hpp"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>
#include <utility>

namespace kestrelfen {

namespace {

using namespace std::chrono_literals;

/// A change seldom comes alone.
constexpr auto gatheringTime = 50ms;

constexpr std::uint32_t departures = IN_DELETE_SELF | IN_MOVE_SELF;
constexpr std::uint32_t contentChanges =
    IN_CLOSE_WRITE | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_ATTRIB;
constexpr std::uint32_t arrivals = IN_CREATE | IN_MOVED_TO | IN_ATTRIB;

std::error_code lastError() {
    return {errno, std::generic_category()};
}

} // namespace

DirectoryWatch::DirectoryWatch(std::filesystem::path folder, std::function<void()> changed)
    : folder_(std::move(folder)), changed_(std::move(changed)),
      inotify_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    if (inotify_ < 0) {
        failure_ = lastError();
        return;
    }
    pause_.setSingleShot(true);
    pause_.setInterval(gatheringTime);
    QObject::connect(&pause_, &QTimer::timeout, [this] { changed_(); });
    notifier_ = std::make_unique<QSocketNotifier>(inotify_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { readEvents(); });
    arm();
}

DirectoryWatch::~DirectoryWatch() {
    notifier_.reset();
    if (inotify_ >= 0) {
        ::close(inotify_);
    }
}

/// Watches the folder, or the nearest ancestor that exists. A folder on the way to it that comes into being
/// just before its parent is watched goes unnoticed, so the search is made until it ends twice at the same
/// place.
void DirectoryWatch::arm() {
    std::filesystem::path place = watchNearest();
    for (auto again = watchNearest(); again != place; again = watchNearest()) {
        place = std::move(again);
    }
    isOnFolder_ = place == folder_;
}

std::filesystem::path DirectoryWatch::watchNearest() {
    std::filesystem::path place = folder_;
    while (!watch(place) && place.has_relative_path()) {
        place = place.parent_path();
    }
    return place;
}

bool DirectoryWatch::watch(const std::filesystem::path& place) {
    const std::uint32_t changes = place == folder_ ? contentChanges : arrivals;
    const int descriptor = inotify_add_watch(inotify_, place.c_str(), changes | departures | IN_ONLYDIR);
    if (descriptor < 0) {
        failure_ = lastError();
        return false;
    }
    failure_ = {};
    if (descriptor_ != descriptor) {
        inotify_rm_watch(inotify_, std::exchange(descriptor_, descriptor));
    }
    return true;
}

void DirectoryWatch::readEvents() {
    alignas(inotify_event) char buffer[4096];
    for (;;) {
        const ssize_t length = ::read(inotify_, buffer, sizeof buffer);
        if (length <= 0) {
            return;
        }
        for (ssize_t position = 0; position < length;) {
            inotify_event event{};
            std::memcpy(&event, buffer + position, sizeof event);
            position += static_cast<ssize_t>(sizeof event + event.len);
            if (event.wd == descriptor_ || (event.mask & IN_Q_OVERFLOW) != 0) {
                note(event.mask);
            }
        }
    }
}

void DirectoryWatch::note(std::uint32_t mask) {
    const bool wasOnFolder = isOnFolder_;
    if (!wasOnFolder || (mask & (departures | IN_UNMOUNT | IN_IGNORED | IN_Q_OVERFLOW)) != 0) {
        arm();
    }
    if (wasOnFolder || isOnFolder_) {
        tell();
    }
}

void DirectoryWatch::tell() {
    if (!pause_.isActive()) {
        pause_.start();
    }
}

} // namespace kestrelfen
