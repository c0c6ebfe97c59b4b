#include "fuzz/Input.hpp"
#include "sensing/BrowserScripting.hpp"

#include <algorithm>

using kestrelfen::BrowserScripting;
using kestrelfen::demand;

/// Whatever an address holds, no more than a host is let out.
int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const auto domain = BrowserScripting::domain(kestrelfen::textOf(bytes, size));
    if (!domain) {
        return 0;
    }
    // An address of numbers has its colons without brackets.
    const bool isNumbers = domain->find_first_not_of("0123456789abcdef:.") == std::string::npos;
    demand(std::none_of(domain->begin(), domain->end(), [isNumbers](char each) {
        const bool isUpper = each >= 'A' && each <= 'Z';
        const bool isBlank = static_cast<unsigned char>(each) <= 0x20 || each == 0x7f;
        return isUpper || isBlank || std::string_view("/?#@\\").find(each) != std::string_view::npos ||
               (each == ':' && !isNumbers);
    }));
    return 0;
}
