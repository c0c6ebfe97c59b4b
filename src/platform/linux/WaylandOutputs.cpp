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

std::vector<Display> WaylandOutputs::displays() const {
    std::vector<Display> displays;
    for (const auto& [number, output] : outputs_) {
        if (const auto frame = output.frame()) {
            displays.push_back(
                {static_cast<std::int64_t>(displays.size()) + 1, output.name(), *frame, *frame});
        }
    }
    return displays;
}

wl_output* WaylandOutputs::find(const Display& display) const {
    const auto found = std::find_if(outputs_.begin(), outputs_.end(), [&display](const auto& each) {
        return each.second.name() == display.name && each.second.frame() == display.frame;
    });
    return found == outputs_.end() ? nullptr : found->second.raw();
}

int WaylandOutputs::scale(const wl_output* output) const {
    const WaylandOutput* const found = find(output);
    return found ? found->scale() : 1;
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
                manager_.get(), [this] { observers_.notify(); });
            ++revision_;
        }
    }
}

void WaylandOutputs::removeLost() {
    const auto& globals = connection_.globals();
    const auto lost = std::erase_if(outputs_, [&](const auto& output) {
        return std::none_of(globals.begin(), globals.end(),
                            [&](const auto& global) { return global.number == output.first; });
    });
    if (lost > 0) {
        ++revision_;
        observers_.notify();
    }
}

} // namespace kestrelfen
