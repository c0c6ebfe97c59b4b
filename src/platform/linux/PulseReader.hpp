#pragma once

#include "platform/linux/AudioProcessTable.hpp"

#include <functional>
#include <pulse/pulseaudio.h>

namespace kestrelfen {

/// Reads a sound server's clients, sources and streams once, and then what its events say has changed. What
/// streams are called is never looked at: it may be the title of a page. Thread of the context's loop; must
/// not outlive the context.
class PulseReader {
  public:
    struct Told {
        /// With all processes, whenever what is known of them has changed and no answer is awaited.
        std::function<void(const std::vector<AudioProcess>&)> changed;
        /// The server refused a question that it must answer.
        std::function<void()> failed;
    };

    /// The context must be ready.
    PulseReader(pa_context* context, Told told);
    PulseReader(const PulseReader&) = delete;
    PulseReader& operator=(const PulseReader&) = delete;

  private:
    using Index = AudioProcessTable::Index;

    template <typename Info>
    static void receive(pa_context* context, const Info* info, int end, void* reader);
    static void subscribed(pa_context* context, int success, void* reader);
    static void happened(pa_context* context, pa_subscription_event_type_t event, Index index, void* reader);

    void readAll();
    void read(pa_subscription_event_type_t facility, Index index);
    void remove(pa_subscription_event_type_t facility, Index index);
    void await(pa_operation* operation);
    void finish(bool succeeded);

    void put(const pa_client_info& client);
    void put(const pa_source_info& source);
    void put(const pa_sink_input_info& stream);
    void put(const pa_source_output_info& stream);
    void tellIfChanged();

    pa_context* context_;
    Told told_;
    AudioProcessTable table_;
    int awaited_ = 0;
    bool hasTold_ = false;
    std::vector<AudioProcess> lastTold_;
};

} // namespace kestrelfen
