#pragma once

#include <memory>
#include <pulse/pulseaudio.h>

namespace kestrelfen {

struct PulseRelease {
    void operator()(pa_context* context) const { pa_context_unref(context); }
    void operator()(pa_proplist* properties) const { pa_proplist_free(properties); }
    void operator()(pa_threaded_mainloop* loop) const { pa_threaded_mainloop_free(loop); }
};

using PulseContext = std::unique_ptr<pa_context, PulseRelease>;
using PulseProperties = std::unique_ptr<pa_proplist, PulseRelease>;
using PulseLoop = std::unique_ptr<pa_threaded_mainloop, PulseRelease>;

/// Lets go of an operation of whose end its own callback tells; there may be none.
inline void release(pa_operation* operation) {
    if (operation) {
        pa_operation_unref(operation);
    }
}

} // namespace kestrelfen
