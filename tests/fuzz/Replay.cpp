#include "fuzz/Input.hpp"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// Goes through the files of the folders that it is given.
int main(int argumentCount, char** arguments) {
    int inputs = 0;
    for (int index = 1; index < argumentCount; ++index) {
        for (const auto& entry : std::filesystem::directory_iterator(arguments[index])) {
            std::printf("%s\n", entry.path().filename().c_str());
            std::fflush(stdout);
            std::ifstream file(entry.path(), std::ios::binary);
            const std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
            ++inputs;
        }
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
