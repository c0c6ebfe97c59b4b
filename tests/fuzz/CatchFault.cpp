#include "fuzz/CatchFault.hpp"

#include "base/Fault.hpp"

namespace kestrelfen {

void fault(const char* /*what*/) {
    throw FaultReached();
}

} // namespace kestrelfen
