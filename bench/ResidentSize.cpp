#include "bench/ResidentSize.hpp"

#include <fstream>
#include <string>

namespace kestrelfen {

namespace {

double bytesOf(const std::string& field) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == field) {
            double kibibytes = 0;
            status >> kibibytes;
            return kibibytes * 1024;
        }
    }
    return 0;
}

void forgetThePeak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

} // namespace

ResidentSize::ResidentSize() : atStart_((forgetThePeak(), bytesOf("VmRSS:"))) {}

double ResidentSize::growthAtPeak() const {
    return bytesOf("VmHWM:") - atStart_;
}

} // namespace kestrelfen
