// Linked into the tests while mutants are tried: MUTANT names the one to be run; REACHED names the file that is told,
// test by test, which mutants were reached.

#include "Switch.hpp"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <fstream>

namespace {

constexpr std::size_t most = 8192;

std::array<std::atomic<bool>, most>& reached() {
    static std::array<std::atomic<bool>, most> flags{};
    return flags;
}

int chosen() {
    static const int number = std::getenv("MUTANT") ? std::atoi(std::getenv("MUTANT")) : -1;
    return number;
}

class Reporter final : public testing::EmptyTestEventListener {
  public:
    explicit Reporter(const char* path) : file_(path, std::ios::app) {}

    void OnTestEnd(const testing::TestInfo& test) override {
        file_ << test.test_suite_name() << '.' << test.name();
        for (std::size_t number = 0; number < most; ++number) {
            if (reached()[number].exchange(false)) {
                file_ << ' ' << number;
            }
        }
        file_ << std::endl;
    }

  private:
    std::ofstream file_;
};

const bool isReporting = [] {
    const char* const path = std::getenv("REACHED");
    if (path) {
        testing::UnitTest::GetInstance()->listeners().Append(new Reporter(path));
    }
    return path != nullptr;
}();

} // namespace

bool mutation::isChosen(int number) {
    if (isReporting) {
        reached()[static_cast<std::size_t>(number)].store(true, std::memory_order_relaxed);
    }
    return number == chosen();
}
