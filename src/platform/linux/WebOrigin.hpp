#pragma once

#include <QStringView>

#include <string>

namespace kestrelfen {

/// What is kept of a page's address: scheme, host and port, without a user's name. Empty for anything but a
/// web address. Any thread.
std::string webOrigin(QStringView address);

} // namespace kestrelfen
