#include "store/StoreWriter.hpp"

#include <cstdlib>
#include <unistd.h>

/// Saves from the second argument's number on into the first argument's store, and tells of each completed
/// save by one byte on standard output.
int main(int count, char** arguments) {
    if (count != 3) {
        return EXIT_FAILURE;
    }
    kestrelfen::StoreConfiguration configuration;
    configuration.file = arguments[1];
    kestrelfen::HistoryDatabase database(configuration);
    for (std::int64_t number = std::atoll(arguments[2]);; ++number) {
        kestrelfen::StoreWriter::save(database, number);
        if (::write(STDOUT_FILENO, "x", 1) != 1) {
            return EXIT_FAILURE;
        }
    }
}
