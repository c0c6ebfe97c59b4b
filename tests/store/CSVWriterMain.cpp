#include "store/HistoryDatabase.hpp"
#include "store/KestrelfenStore.hpp"
#include "store/StoreHarness.hpp"

#include <iostream>

/// Records a break for each title on standard input, where a zero byte ends each, and writes the history as
/// comma-separated text.
int main() {
    kestrelfen::StoreHarness store;
    store.open();
    kestrelfen::Date time = kestrelfen::today();
    for (std::string title; std::getline(std::cin, title, '\0'); time = time + 1) {
        store.recordBreak(kestrelfen::titled(kestrelfen::completedBreak(time, 20), title));
    }
    std::cout << store.historyCSV();
}
