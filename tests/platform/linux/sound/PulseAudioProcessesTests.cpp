#include "platform/linux/sound/PulseAudioProcessesTest.hpp"

#include <QTimer>

#include <csignal>

namespace kestrelfen {
namespace {

TEST_F(PulseAudioProcessesTest, SilenceIsSupported) {
    expect(silence());
}

TEST_F(PulseAudioProcessesTest, IsToldOfAChangeSoon) {
    SoundProgram program(player);
    expect(silence());
    program.play();
    QElapsedTimer time;
    time.start();
    expect(plays());
    program.end();
    expect(silence());
    EXPECT_LT(time.elapsed(), 1000);
}

TEST_F(PulseAudioProcessesTest, HearsWhatPlayedAndRecordedBeforeItCame) {
    SoundProgram program(player);
    program.play();
    program.record("microphone");
    PulseAudioProcesses latecomer(identity);
    waitUntil([&] { return latecomer.hasProcessList(); });
    EXPECT_EQ(AudioActivity::current(latecomer, log), (AudioActivity{{player}, {player}, true}));
}

TEST_F(PulseAudioProcessesTest, AStreamThatEndsBeforeItIsLookedAtDoesNoHarm) {
    expect(silence());
    SoundProgram program(player);
    bool isSupported = true;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout,
                     [&] { isSupported = isSupported && processes.hasProcessList(); });
    watch.start(0);
    program.blink();
    pass(quiet);
    EXPECT_TRUE(isSupported);
    expect(silence());
}

TEST_F(PulseAudioProcessesTest, ACorkedStreamDoesNotCount) {
    SoundProgram program(player);
    program.playCorked();
    expectLasting(silence());
    program.uncork();
    expect(plays());
    program.cork();
    expect(silence());
    program.end();
    program.record("microphone");
    expect(records());
    program.cork();
    expect(silence());
}

TEST_F(PulseAudioProcessesTest, RecordingWhatIsPlayedIsNoInput) {
    SoundProgram program(player);
    program.record("speakers.monitor");
    expectLasting(silence());
    program.record("microphone");
    expect(records());
    program.end();
    expect(silence());
}

TEST_F(PulseAudioProcessesTest, ARecordingThatMovesBetweenSourcesIsFollowed) {
    SoundProgram program(player);
    program.record("microphone");
    expect(records());
    outputOf("pactl", {"move-source-output", "0", "speakers.monitor"});
    expect(silence());
    outputOf("pactl", {"move-source-output", "0", "microphone"});
    expect(records());
}

TEST_F(PulseAudioProcessesTest, AMicrophoneThatIsPluggedInLaterCounts) {
    SoundProgram program(player);
    expect(silence());
    outputOf("pactl", {"load-module", "module-null-source", "source_name=headset"});
    program.record("headset");
    expect(records());
}

TEST_F(PulseAudioProcessesTest, TwoStreamsOfOneProcessAreOne) {
    SoundProgram program(player);
    program.play();
    program.play();
    expect(plays());
    EXPECT_EQ(objectsOf(player), 1U);
    program.end();
    expectLasting(plays());
    program.end();
    expect(silence());
    EXPECT_EQ(objectsOf(player), 1U) << "its connection stands";
}

TEST_F(PulseAudioProcessesTest, AProcessThatIsKilledIsGone) {
    SoundProgram program(player);
    program.play();
    expect(plays());
    ::kill(static_cast<pid_t>(program.id()), SIGKILL);
    expect(silence());
    EXPECT_TRUE(waitUntil([this] { return objectsOf(player) == 0; }));
}

TEST_F(PulseAudioProcessesTest, UsualPlayersAndRecordersAreHeard) {
    expect(silence());
    {
        const ChildProcess playing("pacat", {"--property=application.id=org.example.Player", "/dev/zero"});
        const ChildProcess recording(
            "parec", {"--property=application.id=org.example.Recorder", "--device=microphone", "/dev/null"});
        expect({{"org.example.Recorder"}, {player}, true});
    }
    expect(silence());
}

TEST_F(PulseAudioProcessesTest, TheIdentityIsAskedOnceWithAllClues) {
    SoundProgram program(player);
    program.play();
    expect(plays());
    program.record("microphone");
    expect({{player}, {player}, true});
    const ProgramClues clues{static_cast<std::int32_t>(program.id()), "kestrelfen_sound_client", player,
                             "test-icon"};
    EXPECT_EQ(std::count(identity.asked.begin(), identity.asked.end(), clues), 1);
}

TEST_F(PulseAudioProcessesTest, WhatIsPlayedIsNeverTold) {
    SoundProgram program(player);
    program.play();
    expect(plays());
    for (const ProgramClues& clues : identity.asked) {
        for (const std::string& text : {clues.binary, clues.applicationId, clues.iconName}) {
            EXPECT_EQ(text.find("private"), std::string::npos) << text;
        }
    }
}

TEST_F(PulseAudioProcessesTest, AProgramThatWasNotKnownIsAskedForAgain) {
    identity.knowsNone = true;
    SoundProgram program(player);
    program.play();
    expectLasting(silence());
    identity.knowsNone = false;
    program.record("microphone");
    expect({{player}, {player}, true});
}

} // namespace
} // namespace kestrelfen
