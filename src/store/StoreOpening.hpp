#pragma once

#include "store/StoreConfiguration.hpp"

#include <SQLiteCpp/Database.h>

namespace kestrelfen {

/// Opens the store's file for reading and writing, or makes it. Throws where that fails; the file, and what
/// lies beside it, is then as it was.
SQLite::Database openStore(const StoreConfiguration& configuration);

} // namespace kestrelfen
