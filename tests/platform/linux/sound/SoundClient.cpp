#include "platform/linux/PulseHandles.hpp"

#include <iostream>
#include <string>
#include <type_traits>
#include <unistd.h>
#include <vector>

namespace kestrelfen {
namespace {

constexpr pa_sample_spec format{PA_SAMPLE_U8, 8000, 1};
/// As a browser would call its stream.
constexpr char streamName[] = "A private page - Browser";

/// A program of the product that it is told, on one connection to the sound server. Any number of streams
/// play silence or drop what they hear.
class SoundClient {
  public:
    explicit SoundClient(const char* product) : loop_(pa_threaded_mainloop_new()) {
        const PulseProperties properties(pa_proplist_new());
        pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ID, product);
        pa_proplist_sets(properties.get(), PA_PROP_APPLICATION_ICON_NAME, "test-icon");
        pa_proplist_sets(properties.get(), PA_PROP_MEDIA_NAME, streamName);
        context_.reset(pa_context_new_with_proplist(pa_threaded_mainloop_get_api(loop_.get()), nullptr,
                                                    properties.get()));
        pa_threaded_mainloop_start(loop_.get());
    }

    ~SoundClient() { pa_threaded_mainloop_stop(loop_.get()); }

    bool connect() {
        inLoop(
            [this] { return pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr); });
        return waitFor([this] { return pa_context_get_state(context_.get()) == PA_CONTEXT_READY; },
                       [this] { return !PA_CONTEXT_IS_GOOD(pa_context_get_state(context_.get())); });
    }

    bool play(pa_stream_flags_t flags) {
        pa_stream* const stream = newStream();
        inLoop([&] {
            pa_stream_set_write_callback(stream, writeSilence, nullptr);
            return pa_stream_connect_playback(stream, nullptr, nullptr, flags, nullptr, nullptr);
        });
        return isReady(stream);
    }

    bool record(const std::string& device) {
        pa_stream* const stream = newStream();
        inLoop([&] {
            pa_stream_set_read_callback(stream, drop, nullptr);
            return pa_stream_connect_record(stream, device.c_str(), nullptr, PA_STREAM_NOFLAGS);
        });
        return isReady(stream);
    }

    bool cork(bool corked) {
        inLoop([&] {
            release(pa_stream_cork(streams_.back(), corked ? 1 : 0, nullptr, nullptr));
            return 0;
        });
        return true;
    }

    /// Streams that end as soon as they stand.
    bool blink() {
        constexpr int times = 100;
        for (int count = 0; count < times; ++count) {
            pa_stream* const stream = newStream();
            inLoop([stream] {
                pa_stream_set_state_callback(stream, endWhenReady, nullptr);
                return pa_stream_connect_playback(stream, nullptr, nullptr, PA_STREAM_NOFLAGS, nullptr,
                                                  nullptr);
            });
            waitFor([stream] { return pa_stream_get_state(stream) == PA_STREAM_TERMINATED; },
                    [] { return false; });
            streams_.pop_back();
        }
        return true;
    }

    bool end() {
        inLoop([this] { return pa_stream_disconnect(streams_.back()); });
        streams_.pop_back();
        return true;
    }

  private:
    static void writeSilence(pa_stream* stream, std::size_t size, void*) {
        const std::vector<unsigned char> silence(size, 0x80);
        pa_stream_write(stream, silence.data(), size, nullptr, 0, PA_SEEK_RELATIVE);
    }

    static void endWhenReady(pa_stream* stream, void*) {
        if (pa_stream_get_state(stream) == PA_STREAM_READY) {
            pa_stream_disconnect(stream);
        }
    }

    static void drop(pa_stream* stream, std::size_t, void*) {
        const void* data = nullptr;
        std::size_t size = 0;
        pa_stream_peek(stream, &data, &size);
        if (size > 0) {
            pa_stream_drop(stream);
        }
    }

    pa_stream* newStream() {
        inLoop([this] {
            streams_.push_back(pa_stream_new(context_.get(), streamName, &format, nullptr));
            return 0;
        });
        return streams_.back();
    }

    bool isReady(pa_stream* stream) {
        return waitFor([stream] { return pa_stream_get_state(stream) == PA_STREAM_READY; },
                       [stream] { return !PA_STREAM_IS_GOOD(pa_stream_get_state(stream)); });
    }

    template <typename Call>
    std::invoke_result_t<Call> inLoop(Call call) {
        pa_threaded_mainloop_lock(loop_.get());
        const auto result = call();
        pa_threaded_mainloop_unlock(loop_.get());
        return result;
    }

    template <typename Condition, typename Failure>
    bool waitFor(Condition isReached, Failure hasFailed) {
        while (!inLoop(isReached)) {
            if (inLoop(hasFailed)) {
                return false;
            }
            ::usleep(2000);
        }
        return true;
    }

    PulseLoop loop_;
    PulseContext context_;
    std::vector<pa_stream*> streams_;
};

bool obey(SoundClient& client, const std::string& command, const std::string& argument) {
    if (command == "play") {
        return client.play(PA_STREAM_NOFLAGS);
    }
    if (command == "play-corked") {
        return client.play(PA_STREAM_START_CORKED);
    }
    if (command == "record") {
        return client.record(argument);
    }
    if (command == "cork" || command == "uncork") {
        return client.cork(command == "cork");
    }
    if (command == "blink") {
        return client.blink();
    }
    return command == "end" && client.end();
}

int run(const char* product) {
    SoundClient client(product);
    std::cout << (client.connect() ? "connected" : "failed") << std::endl;
    std::string line;
    while (std::getline(std::cin, line)) {
        const auto space = line.find(' ');
        const std::string argument = space == std::string::npos ? "" : line.substr(space + 1);
        std::cout << (obey(client, line.substr(0, space), argument) ? "done" : "failed") << std::endl;
    }
    return 0;
}

} // namespace
} // namespace kestrelfen

int main(int argumentCount, char** arguments) {
    return argumentCount == 2 ? kestrelfen::run(arguments[1]) : 1;
}
