#include "platform/linux/WaylandToplevels.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::uint32_t newestVersion = 3;

} // namespace

const zwlr_foreign_toplevel_manager_v1_listener WaylandToplevels::managerListener{
    .toplevel =
        [](void* self, zwlr_foreign_toplevel_manager_v1*, zwlr_foreign_toplevel_handle_v1* handle) {
            auto& toplevels = *static_cast<WaylandToplevels*>(self);
            toplevels.entries_.emplace_back(handle, toplevels.listener_);
        },
    .finished = [](void* self,
                   zwlr_foreign_toplevel_manager_v1*) { static_cast<WaylandToplevels*>(self)->end(); },
};

WaylandToplevels::WaylandToplevels(WaylandConnection& connection, ProgramCatalogue& catalogue)
    : catalogue_(catalogue),
      outputs_(connection), listener_{.changed = [this](WaylandToplevel& toplevel) { change(toplevel); },
                                      .closed = [this](WaylandToplevel& toplevel) { remove(toplevel); }} {
    const auto* const global = connection.find(zwlr_foreign_toplevel_manager_v1_interface.name);
    if (!global) {
        return;
    }
    manager_.reset(connection.bind<zwlr_foreign_toplevel_manager_v1>(
        *global, zwlr_foreign_toplevel_manager_v1_interface, newestVersion));
    zwlr_foreign_toplevel_manager_v1_add_listener(manager_.get(), &managerListener, this);
    connection.flush();
    subscription_ = connection.observe([this, &connection] { connectionChanged(connection); });
}

/// Told after the displays, which have listened for longer.
void WaylandToplevels::connectionChanged(const WaylandConnection& connection) {
    if (connection.isBroken()) {
        end();
        return;
    }
    for (Entry& entry : entries_) {
        entry.toplevel.forgetDisplaysBut(
            [this](const wl_output* output) { return outputs_.contains(output); });
    }
}

bool WaylandToplevels::isOfferedBy(const WaylandConnection& connection) {
    return connection.offers(zwlr_foreign_toplevel_manager_v1_interface.name);
}

std::vector<const WaylandToplevel*> WaylandToplevels::all() const {
    std::vector<const WaylandToplevel*> toplevels;
    for (const Entry& entry : entries_) {
        if (entry.toplevel.isKnown()) {
            toplevels.push_back(&entry.toplevel);
        }
    }
    return toplevels;
}

std::vector<const WaylandToplevel*> WaylandToplevels::byLastActivation() const {
    std::vector<const Entry*> entries;
    for (const Entry& entry : entries_) {
        if (entry.toplevel.isKnown()) {
            entries.push_back(&entry);
        }
    }
    std::stable_sort(entries.begin(), entries.end(), [](const Entry* left, const Entry* right) {
        return left->activation > right->activation;
    });
    std::vector<const WaylandToplevel*> toplevels;
    std::transform(entries.begin(), entries.end(), std::back_inserter(toplevels),
                   [](const Entry* entry) { return &entry->toplevel; });
    return toplevels;
}

const WaylandToplevel* WaylandToplevels::active() const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [](const Entry& entry) { return entry.toplevel.facts().isActivated; });
    return found == entries_.end() ? nullptr : &found->toplevel;
}

std::optional<ScreenRect> WaylandToplevels::displayOf(const WaylandToplevel& toplevel) const {
    const auto& outputs = toplevel.facts().outputs;
    return outputs.empty() ? std::nullopt : outputs_.frame(outputs.back());
}

void WaylandToplevels::end() {
    entries_.clear();
    manager_.reset();
}

void WaylandToplevels::change(const WaylandToplevel& toplevel) {
    Entry& entry = *place(toplevel);
    const auto& facts = toplevel.facts();
    if (entry.toplevel.processIdentifier == 0 || entry.identifiedBy != facts.application) {
        identify(entry);
    }
    if (facts.isActivated && !entry.wasActivated) {
        entry.activation = ++activations_;
    }
    entry.wasActivated = facts.isActivated;
}

void WaylandToplevels::identify(Entry& entry) {
    entry.identifiedBy = entry.toplevel.facts().application;
    entry.toplevel.processIdentifier = processIdentifierOf(entry);
    entry.toplevel.program = catalogue_.identify({.processIdentifier = std::nullopt,
                                                  .className = entry.identifiedBy,
                                                  .instanceName = {},
                                                  .gtkApplicationId = {}});
}

/// Windows of which nobody knows the application are an application each.
std::int32_t WaylandToplevels::processIdentifierOf(const Entry& entry) {
    const std::string& application = entry.identifiedBy;
    const auto kin = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& each) {
        return &each != &entry && each.identifiedBy == application;
    });
    return application.empty() || kin == entries_.end() ? --lastProcessIdentifier_
                                                        : kin->toplevel.processIdentifier;
}

void WaylandToplevels::remove(const WaylandToplevel& toplevel) {
    entries_.erase(place(toplevel));
}

std::list<WaylandToplevels::Entry>::iterator WaylandToplevels::place(const WaylandToplevel& toplevel) {
    return std::find_if(entries_.begin(), entries_.end(),
                        [&](const Entry& entry) { return &entry.toplevel == &toplevel; });
}

} // namespace kestrelfen
