#pragma once

#include <QStringView>

#include <string_view>

namespace kestrelfen {

/// Whether a browser's window of this accessible name is an ordinary one, whose pages may be looked at. What
/// is not surely ordinary is not: a private window, a guest's, one of an unknown browser. Any thread.
bool isOrdinaryBrowserWindow(std::string_view bundleIdentifier, QStringView name);

} // namespace kestrelfen
