#pragma once

#include "platform/linux/ProgramIdentity.hpp"

#include <pulse/proplist.h>

namespace kestrelfen {

/// What the properties of a sound server's client say of the program behind it.
ProgramClues programClues(const pa_proplist& properties);

} // namespace kestrelfen
