#pragma once

#include "platform/ports/AudioProcesses.hpp"

#include <gtest/gtest.h>

#include <set>

namespace kestrelfen {

/// What holds for every backend of AudioProcesses. A subject makes products record and play: `processes()`,
/// `record(product)`, `play(product)`, `stop(product)`, and `waitUntil(condition)`, which answers whether it
/// came to be.
template <typename Subject>
class AudioProcessesContract : public testing::Test {
  protected:
    using Products = std::set<std::string>;
    using ObjectID = AudioProcesses::ObjectID;

    const AudioProcesses& processes() { return subject.processes(); }

    template <typename IsTrue>
    Products productsOf(IsTrue isTrue) {
        Products products;
        for (const ObjectID object : processes().processObjects().value_or(std::vector<ObjectID>())) {
            const auto product = processes().bundleIdentifier(object);
            if (product && isTrue(object)) {
                products.insert(*product);
            }
        }
        return products;
    }

    Products recording() {
        return productsOf(
            [this](ObjectID object) { return processes().isRunningInput(object).value_or(false); });
    }
    Products playing() {
        return productsOf(
            [this](ObjectID object) { return processes().isRunningOutput(object).value_or(false); });
    }

    void expect(const Products& recordingProducts, const Products& playingProducts) {
        subject.waitUntil([&] { return recording() == recordingProducts && playing() == playingProducts; });
        EXPECT_EQ(recording(), recordingProducts);
        EXPECT_EQ(playing(), playingProducts);
    }

    Subject subject;
};

TYPED_TEST_SUITE_P(AudioProcessesContract);

TYPED_TEST_P(AudioProcessesContract, ListsProcessesEvenInSilence) {
    ASSERT_TRUE(this->subject.waitUntil([&] { return this->processes().hasProcessList(); }));
    ASSERT_TRUE(this->processes().processObjects());
    EXPECT_FALSE(this->processes().processObjects()->empty());
    this->expect({}, {});
}

TYPED_TEST_P(AudioProcessesContract, APlayingProductCountsAsOutputWhileItPlays) {
    this->subject.play("org.example.Player");
    this->expect({}, {"org.example.Player"});
    this->subject.stop("org.example.Player");
    this->expect({}, {});
}

TYPED_TEST_P(AudioProcessesContract, ARecordingProductCountsAsInputWhileItRecords) {
    this->subject.record("org.example.Recorder");
    this->expect({"org.example.Recorder"}, {});
    this->subject.stop("org.example.Recorder");
    this->expect({}, {});
}

TYPED_TEST_P(AudioProcessesContract, SeveralProductsAreToldApart) {
    this->subject.record("org.example.Caller");
    this->subject.play("org.example.Caller");
    this->subject.play("org.example.Player");
    this->expect({"org.example.Caller"}, {"org.example.Caller", "org.example.Player"});
    this->subject.stop("org.example.Caller");
    this->expect({}, {"org.example.Player"});
}

TYPED_TEST_P(AudioProcessesContract, EachObjectIsListedOnceAndAnswers) {
    this->subject.play("org.example.Player");
    this->expect({}, {"org.example.Player"});
    const auto objects = this->processes().processObjects();
    ASSERT_TRUE(objects);
    EXPECT_EQ(std::set(objects->begin(), objects->end()).size(), objects->size());
    for (const auto object : *objects) {
        EXPECT_TRUE(this->processes().isRunningInput(object));
        EXPECT_TRUE(this->processes().isRunningOutput(object));
    }
}

TYPED_TEST_P(AudioProcessesContract, AnObjectThatIsNotThereAnswersNothing) {
    this->subject.play("org.example.Player");
    this->expect({}, {"org.example.Player"});
    constexpr AudioProcesses::ObjectID unknown = 4'000'000;
    EXPECT_EQ(this->processes().bundleIdentifier(unknown), std::nullopt);
    EXPECT_EQ(this->processes().isRunningInput(unknown), std::nullopt);
    EXPECT_EQ(this->processes().isRunningOutput(unknown), std::nullopt);
}

REGISTER_TYPED_TEST_SUITE_P(AudioProcessesContract, ListsProcessesEvenInSilence,
                            APlayingProductCountsAsOutputWhileItPlays,
                            ARecordingProductCountsAsInputWhileItRecords, SeveralProductsAreToldApart,
                            EachObjectIsListedOnceAndAnswers, AnObjectThatIsNotThereAnswersNothing);

} // namespace kestrelfen
