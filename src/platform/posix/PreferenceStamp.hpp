#pragma once

#include "platform/posix/FileStamp.hpp"

#include <string>

namespace kestrelfen {

/// The stamp of the preference file at one moment, that knows how far it is to be trusted. Belongs to one
/// thread.
class PreferenceStamp {
  public:
    /// The stamp of no file.
    PreferenceStamp() = default;

    /// The stamp, now, of the file at `path`, symbolic links followed.
    static PreferenceStamp of(const std::string& path);

    /// False when the file may have changed since this stamp was taken. File systems date changes so coarsely
    /// that a second one right after the first does not show: then this is false although nothing shows.
    bool stillHolds(const PreferenceStamp& now) const { return !isTooFresh_ && file_ == now.file_; }

  private:
    FileStamp file_;
    bool isTooFresh_ = false;
};

} // namespace kestrelfen
