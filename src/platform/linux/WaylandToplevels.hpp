#pragma once

#include "platform/linux/WaylandOutputs.hpp"
#include "platform/linux/WaylandToplevel.hpp"

#include <list>

namespace kestrelfen {

/// Keeps the windows of the session and their programs in memory, as a wlroots compositor tells of them. Main
/// thread only; the connection and the catalogue outlive it. Once the compositor has gone, or tells no more,
/// it stays unavailable.
class WaylandToplevels {
  public:
    WaylandToplevels(WaylandConnection& connection, ProgramCatalogue& catalogue);
    WaylandToplevels(const WaylandToplevels&) = delete;
    WaylandToplevels& operator=(const WaylandToplevels&) = delete;

    static bool isOfferedBy(const WaylandConnection& connection);

    bool isAvailable() const { return manager_ != nullptr; }

    /// In the order of their coming.
    std::vector<const WaylandToplevel*> all() const;
    /// The one in front first, then the others from the last to the first that was there.
    std::vector<const WaylandToplevel*> byLastActivation() const;
    /// Null when none is in front.
    const WaylandToplevel* active() const;
    /// The display it is on; absent when it is on none. Where it is on several: the last it came onto.
    std::optional<ScreenRect> displayOf(const WaylandToplevel& toplevel) const;

    ProgramCatalogue& catalogue() const { return catalogue_; }

  private:
    struct Entry {
        Entry(zwlr_foreign_toplevel_handle_v1* handle, const WaylandToplevel::Listener& listener)
            : toplevel(handle, listener) {}

        WaylandToplevel toplevel;
        std::string identifiedBy;
        bool wasActivated = false;
        /// Counts up with each coming to the front; 0 for one that never was.
        std::uint64_t activation = 0;
    };

    static const zwlr_foreign_toplevel_manager_v1_listener managerListener;

    void connectionChanged(const WaylandConnection& connection);
    void end();
    void change(const WaylandToplevel& toplevel);
    void identify(Entry& entry);
    std::int32_t processIdentifierOf(const Entry& entry);
    void remove(const WaylandToplevel& toplevel);
    std::list<Entry>::iterator place(const WaylandToplevel& toplevel);

    ProgramCatalogue& catalogue_;
    WaylandOutputs outputs_;
    const WaylandToplevel::Listener listener_;
    WaylandPointer<zwlr_foreign_toplevel_manager_v1> manager_;
    std::list<Entry> entries_;
    std::uint64_t activations_ = 0;
    std::int32_t lastProcessIdentifier_ = 0;
    Subscription subscription_;
};

} // namespace kestrelfen
