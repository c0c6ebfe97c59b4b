#pragma once

#include "platform/ports/Log.hpp"
#include "platform/ports/MainQueue.hpp"
#include "platform/ports/SerialExecutor.hpp"
#include "store/HistoryDatabase.hpp"
#include "store/KestrelfenStore.hpp"

#include <exception>
#include <string>
#include <utility>

namespace kestrelfen {

// What the jobs use is in the closures: they may run after the store has ended.
template <typename Result, typename Work>
void KestrelfenStore::perform(std::string_view operation, Result fallback, Work work,
                              Completion<Result> completion) {
    services_.executor.post([database = database_, &mainQueue = services_.mainQueue, log = logger(),
                             operation, answer = std::move(fallback), work = std::move(work),
                             completion = std::move(completion)]() mutable {
        try {
            answer = work(*database);
        } catch (const std::exception& exception) {
            log.error(std::string(operation) + " failed: " + exception.what());
        }
        if (completion) {
            mainQueue.post([completion = std::move(completion), answer = std::move(answer)]() mutable {
                completion(std::move(answer));
            });
        }
    });
}

template <typename Work>
void KestrelfenStore::perform(std::string_view operation, Work work, Done completion) {
    struct Nothing {};
    Completion<Nothing> answered;
    if (completion) {
        answered = [completion = std::move(completion)](Nothing) { completion(); };
    }
    perform(
        operation, Nothing(),
        [work = std::move(work)](HistoryDatabase& database) {
            work(database);
            return Nothing();
        },
        std::move(answered));
}

} // namespace kestrelfen
