#include "platform/LoginItemContract.hpp"
#include "platform/fake/FakeLoginItem.hpp"

namespace kestrelfen {
namespace {

struct FakeSubject {
    FakeLoginItem& loginItem() { return item; }
    void settle() {}

    FakeLoginItem item;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, LoginItemContract, FakeSubject);

TEST(FakeLoginItem, FailsAsItWasToldToAndThenStaysAsItIs) {
    FakeLoginItem item;
    int changes = 0;
    item.onSet = [&changes](bool /*enabled*/) { ++changes; };
    item.setFailure("no");
    std::optional<std::string> error;
    item.setEnabled(true, [&error](std::optional<std::string> told) { error = std::move(told); });
    EXPECT_EQ(error, "no");
    EXPECT_FALSE(item.isEnabled());
    EXPECT_EQ(changes, 0);
}

} // namespace
} // namespace kestrelfen
