#include "platform/DisplayWishesContract.hpp"
#include "platform/fake/FakeDisplayWishes.hpp"

namespace kestrelfen {
namespace {

struct FakeSubject {
    DisplayWishes& wishes() { return fake; }
    void wish(const DisplayWishes::Values& values) { fake.set(values); }
    void settle() {}

    FakeDisplayWishes fake;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, DisplayWishesContract, FakeSubject);

} // namespace
} // namespace kestrelfen
