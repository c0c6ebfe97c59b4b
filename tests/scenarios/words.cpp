#include "Scenario.hpp"

#include <iostream>

/// Prints every form of a scenario's line, one a line; a star stands for any word.
int main() {
    for (const std::string& form : kestrelfen::Scenario::forms()) {
        std::cout << form << '\n';
    }
}
