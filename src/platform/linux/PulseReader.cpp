#include "platform/linux/PulseReader.hpp"

#include "platform/linux/PulseClues.hpp"
#include "platform/linux/PulseHandles.hpp"

namespace kestrelfen {

namespace {

constexpr auto interests =
    static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_CLIENT | PA_SUBSCRIPTION_MASK_SOURCE |
                                        PA_SUBSCRIPTION_MASK_SINK_INPUT | PA_SUBSCRIPTION_MASK_SOURCE_OUTPUT);

constexpr pa_subscription_event_type_t part(pa_subscription_event_type_t event, unsigned mask) {
    return static_cast<pa_subscription_event_type_t>(event & mask);
}

} // namespace

PulseReader::PulseReader(pa_context* context, Told told) : context_(context), told_(std::move(told)) {
    pa_context_set_subscribe_callback(context_, happened, this);
    await(pa_context_subscribe(context_, interests, subscribed, this));
    readAll();
}

void PulseReader::readAll() {
    await(pa_context_get_client_info_list(context_, receive<pa_client_info>, this));
    await(pa_context_get_source_info_list(context_, receive<pa_source_info>, this));
    await(pa_context_get_sink_input_info_list(context_, receive<pa_sink_input_info>, this));
    await(pa_context_get_source_output_info_list(context_, receive<pa_source_output_info>, this));
}

void PulseReader::read(pa_subscription_event_type_t facility, Index index) {
    switch (facility) {
    case PA_SUBSCRIPTION_EVENT_CLIENT:
        return await(pa_context_get_client_info(context_, index, receive<pa_client_info>, this));
    case PA_SUBSCRIPTION_EVENT_SOURCE:
        return await(pa_context_get_source_info_by_index(context_, index, receive<pa_source_info>, this));
    case PA_SUBSCRIPTION_EVENT_SINK_INPUT:
        return await(pa_context_get_sink_input_info(context_, index, receive<pa_sink_input_info>, this));
    case PA_SUBSCRIPTION_EVENT_SOURCE_OUTPUT:
        return await(
            pa_context_get_source_output_info(context_, index, receive<pa_source_output_info>, this));
    default:
        return;
    }
}

void PulseReader::remove(pa_subscription_event_type_t facility, Index index) {
    switch (facility) {
    case PA_SUBSCRIPTION_EVENT_CLIENT:
        table_.removeClient(index);
        break;
    case PA_SUBSCRIPTION_EVENT_SOURCE:
        table_.removeSource(index);
        break;
    case PA_SUBSCRIPTION_EVENT_SINK_INPUT:
        table_.removePlayback(index);
        break;
    case PA_SUBSCRIPTION_EVENT_SOURCE_OUTPUT:
        table_.removeRecording(index);
        break;
    default:
        return;
    }
    tellIfChanged();
}

void PulseReader::await(pa_operation* operation) {
    // Without an operation the connection has ended, of which the context tells by itself.
    if (operation) {
        ++awaited_;
        release(operation);
    }
}

void PulseReader::finish(bool succeeded) {
    --awaited_;
    // What a question was about may have gone meanwhile; an event tells of that.
    if (!succeeded && pa_context_errno(context_) != PA_ERR_NOENTITY) {
        told_.failed();
        return;
    }
    tellIfChanged();
}

template <typename Info>
void PulseReader::receive(pa_context*, const Info* info, int end, void* reader) {
    PulseReader& self = *static_cast<PulseReader*>(reader);
    if (end == 0) {
        self.put(*info);
    } else {
        self.finish(end > 0);
    }
}

void PulseReader::subscribed(pa_context*, int success, void* reader) {
    static_cast<PulseReader*>(reader)->finish(success != 0);
}

void PulseReader::happened(pa_context*, pa_subscription_event_type_t event, Index index, void* reader) {
    PulseReader& self = *static_cast<PulseReader*>(reader);
    const auto facility = part(event, PA_SUBSCRIPTION_EVENT_FACILITY_MASK);
    const auto type = part(event, PA_SUBSCRIPTION_EVENT_TYPE_MASK);
    if (type == PA_SUBSCRIPTION_EVENT_REMOVE) {
        self.remove(facility, index);
        return;
    }
    // Whether a source is a monitor never changes; its volume does, all the time.
    if (facility != PA_SUBSCRIPTION_EVENT_SOURCE || type == PA_SUBSCRIPTION_EVENT_NEW) {
        self.read(facility, index);
    }
}

void PulseReader::put(const pa_client_info& client) {
    table_.putClient(client.index, programClues(*client.proplist));
}

void PulseReader::put(const pa_source_info& source) {
    table_.putSource(source.index, source.monitor_of_sink != PA_INVALID_INDEX);
}

void PulseReader::put(const pa_sink_input_info& stream) {
    table_.putPlayback(stream.index, {stream.client, stream.corked != 0});
}

void PulseReader::put(const pa_source_output_info& stream) {
    table_.putRecording(stream.index, {stream.client, stream.source, stream.corked != 0});
}

void PulseReader::tellIfChanged() {
    if (awaited_ > 0) {
        return;
    }
    auto processes = table_.processes();
    if (hasTold_ && processes == lastTold_) {
        return;
    }
    hasTold_ = true;
    lastTold_ = std::move(processes);
    told_.changed(lastTold_);
}

} // namespace kestrelfen
