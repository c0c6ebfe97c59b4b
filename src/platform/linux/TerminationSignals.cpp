#include "platform/linux/TerminationSignals.hpp"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace kestrelfen {

TerminationSignals::TerminationSignals(std::function<void()> terminate) : terminate_(std::move(terminate)) {
    sigset_t wanted;
    sigemptyset(&wanted);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        sigaddset(&wanted, signal);
    }
    pthread_sigmask(SIG_BLOCK, &wanted, nullptr);
    descriptor_ = signalfd(-1, &wanted, SFD_CLOEXEC | SFD_NONBLOCK);
}

TerminationSignals::~TerminationSignals() {
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

void TerminationSignals::listen() {
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { read(); });
}

void TerminationSignals::read() const {
    signalfd_siginfo information{};
    while (::read(descriptor_, &information, sizeof information) == sizeof information) {
        terminate_();
    }
}

} // namespace kestrelfen
