#include "platform/linux/sound/PulseAudioProcessesTest.hpp"

namespace kestrelfen {
namespace {

TEST_F(PulseAudioProcessesTest, AfterTheServerWasKilledAndCameAgainItRecovers) {
    {
        SoundProgram program(player);
        program.play();
        expect(plays());
        server.kill();
        expect(AudioActivity::unsupported);
        EXPECT_FALSE(processes.hasProcessList());
        EXPECT_EQ(processes.processObjects(), std::nullopt);
        for (AudioProcesses::ObjectID object = 0; object < 10; ++object) {
            EXPECT_EQ(processes.isRunningOutput(object), std::nullopt);
        }
    }
    server.start();
    expect(silence());
    SoundProgram program(player);
    program.record("microphone");
    expect(records());
}

TEST_F(PulseAudioProcessesTest, RecoversAgainAndAgain) {
    for (int times = 0; times < 3; ++times) {
        server.stop();
        expect(AudioActivity::unsupported);
        server.start();
        expect(silence());
    }
}

TEST_F(PulseAudioProcessesTest, AServerThatHangsKeepsNobodyWaiting) {
    SoundProgram program(player);
    program.play();
    expect(plays());
    server.hang();
    EXPECT_EQ(sample(), plays());
    EXPECT_LT(shortestTimeOf([this] { sample(); }), 5);
    EXPECT_LT(shortestTimeOf([this] { PulseAudioProcesses latecomer(identity); }), 5);
    PulseAudioProcesses latecomer(identity);
    pass(quiet);
    EXPECT_FALSE(latecomer.hasProcessList());
    server.goOn();
    EXPECT_TRUE(waitUntil([&] { return latecomer.hasProcessList(); }));
    program.end();
    expect(silence());
}

TEST_F(PulseAudioProcessesTest, AServerThatHangsAndIsReplacedIsLeft) {
    expect(silence());
    server.hang();
    server.kill();
    expect(AudioActivity::unsupported);
    server.start();
    expect(silence());
}

TEST(PulseAudioWithoutServerTest, ThereIsNoProcessListUntilAServerComes) {
    SoundServer server;
    ApplicationIdentity identity;
    PulseAudioProcesses processes(identity);
    pass(quiet);
    EXPECT_FALSE(processes.hasProcessList());
    EXPECT_EQ(processes.processObjects(), std::nullopt);
    server.start();
    EXPECT_TRUE(waitUntil([&] { return processes.hasProcessList(); }));
}

TEST(PulseAudioWithoutServerTest, MayEndAtOnce) {
    const SoundServer server;
    ApplicationIdentity identity;
    QElapsedTimer time;
    time.start();
    for (int times = 0; times < 20; ++times) {
        const PulseAudioProcesses processes(identity);
    }
    EXPECT_LT(time.elapsed(), 1000);
}

} // namespace
} // namespace kestrelfen
