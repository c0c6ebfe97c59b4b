#include "platform/linux/WaylandLayerGlobals.hpp"

namespace kestrelfen {

namespace {

/// The first that tells what has changed in the pixels of a buffer.
constexpr std::uint32_t compositorVersion = 4;
constexpr std::uint32_t shellVersion = 3;

template <typename Type>
WaylandPointer<Type> bound(WaylandConnection& connection, const wl_interface& interface,
                           std::uint32_t version) {
    const auto* const global = connection.find(interface.name);
    return WaylandPointer<Type>(global ? connection.bind<Type>(*global, interface, version) : nullptr);
}

} // namespace

WaylandLayerGlobals::WaylandLayerGlobals(WaylandConnection& connection)
    : compositor(bound<wl_compositor>(connection, wl_compositor_interface, compositorVersion)),
      sharedMemory(bound<wl_shm>(connection, wl_shm_interface, 1)),
      shell(bound<zwlr_layer_shell_v1>(connection, zwlr_layer_shell_v1_interface, shellVersion)),
      viewporter(bound<wp_viewporter>(connection, wp_viewporter_interface, 1)),
      fractionalScales(
          bound<wp_fractional_scale_manager_v1>(connection, wp_fractional_scale_manager_v1_interface, 1)),
      relativePointers(
          bound<zwp_relative_pointer_manager_v1>(connection, zwp_relative_pointer_manager_v1_interface, 1)) {
    if (!viewporter || !fractionalScales) {
        viewporter.reset();
        fractionalScales.reset();
    }
}

bool WaylandLayerGlobals::areOfferedBy(const WaylandConnection& connection) {
    const auto* const compositor = connection.find(wl_compositor_interface.name);
    return compositor && compositor->version >= compositorVersion &&
           connection.offers(wl_shm_interface.name) && connection.offers(zwlr_layer_shell_v1_interface.name);
}

} // namespace kestrelfen
