#include "platform/linux/WaylandOutputs.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::uint32_t newestManagerVersion = 3;

} // namespace

WaylandOutputs::WaylandOutputs(WaylandConnection& connection) : connection_(connection) {
    if (const auto* const global = connection.find(zxdg_output_manager_v1_interface.name)) {
        manager_.reset(connection.bind<zxdg_output_manager_v1>(*global, zxdg_output_manager_v1_interface,
                                                               newestManagerVersion));
    }
    update();
    subscription_ = connection.observe([this] { update(); });
}

std::optional<ScreenRect> WaylandOutputs::frame(const wl_output* output) const {
    const WaylandOutput* const found = find(output);
    return found ? found->frame() : std::nullopt;
}

const WaylandOutput* WaylandOutputs::find(const wl_output* output) const {
    const auto found = std::find_if(outputs_.begin(), outputs_.end(),
                                    [output](const auto& each) { return each.second.raw() == output; });
    return found == outputs_.end() ? nullptr : &found->second;
}

void WaylandOutputs::update() {
    removeLost();
    add();
    connection_.flush();
}

void WaylandOutputs::add() {
    for (const auto& global : connection_.globals()) {
        if (global.interface == wl_output_interface.name && outputs_.count(global.number) == 0) {
            outputs_.try_emplace(
                global.number,
                connection_.bind<wl_output>(global, wl_output_interface, WaylandOutput::newestVersion),
                manager_.get());
        }
    }
}

void WaylandOutputs::removeLost() {
    const auto& globals = connection_.globals();
    std::erase_if(outputs_, [&](const auto& output) {
        return std::none_of(globals.begin(), globals.end(),
                            [&](const auto& global) { return global.number == output.first; });
    });
}

} // namespace kestrelfen
