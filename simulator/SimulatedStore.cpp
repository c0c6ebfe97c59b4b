#include "SimulatedStore.hpp"

#include <stdexcept>

namespace kestrelfen {

namespace {

void failIf(const std::optional<std::string>& description) {
    if (description) {
        throw std::runtime_error(*description);
    }
}

} // namespace

SimulatedStore::SimulatedStore(std::optional<std::filesystem::path> file) {
    if (file) {
        file_ = *std::move(file);
    } else {
        file_ = folder_.emplace().storeFile();
    }
}

StoreConfiguration SimulatedStore::configuration() const {
    return {.file = file_,
            .beforeOpening = [this] { failIf(broken_); },
            .beforeOperation = [this] { failIf(failing_); }};
}

} // namespace kestrelfen
