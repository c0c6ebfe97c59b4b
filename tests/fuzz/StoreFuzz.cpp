#include "fuzz/Input.hpp"
#include "platform/fake/FakePlatform.hpp"
#include "store/KestrelfenStore.hpp"
#include "support/TemporaryFolder.hpp"

using namespace kestrelfen;

namespace {

/// All that reads, and one thing that writes.
void use(KestrelfenStore& store, FakePlatform& machine) {
    const Date day = machine.calendar.startOfDay(machine.clock.now());
    const Date longAgo = Date::distantPast();
    store.summary(day, {});
    store.summaries(longAgo, {});
    store.appUsage(day, 10, {});
    store.appTotals(longAgo, {});
    store.websiteTotals(longAgo, {});
    store.longestStretch(day, machine.clock.now(), {});
    store.history(longAgo, 500, {});
    store.historyCSV(longAgo, {});
    store.tasks({});
    store.createTask({.title = "one", .notes = {}, .dueOn = {}, .now = machine.clock.now()}, {});
    store.pruneHistory(longAgo, {});
    while (machine.storeExecutor.drain() || machine.mainQueue.drain()) {
    }
}

} // namespace

/// A file that is no store is refused and stays as it was; any other can be used.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const TemporaryFolder folder;
    const std::filesystem::path file = folder / StoreConfiguration::fileName;
    for (const std::string& name : folder.names()) {
        std::filesystem::remove(folder / name);
    }
    writeInPlace(file, textOf(bytes, size));
    FakePlatform machine;
    const auto store =
        KestrelfenStore::make({file, {}, {}}, {machine.storeExecutor, machine.mainQueue, machine.log});
    if (store) {
        use(*store, machine);
    } else {
        demand(contentOf(file) == textOf(bytes, size));
    }
    return 0;
}
