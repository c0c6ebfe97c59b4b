#pragma once

#include "platform/linux/BusService.hpp"

/// The service that looks after sessions, sleep and shutdown: systemd's logind, or elogind.
namespace kestrelfen::login1 {

constexpr char name[] = "org.freedesktop.login1";
constexpr char path[] = "/org/freedesktop/login1";
constexpr char managerInterface[] = "org.freedesktop.login1.Manager";

inline BusService::Method managerMethod(const char* method) {
    return {path, managerInterface, method};
}

inline BusService::Signal managerSignal(const char* signal) {
    return {path, managerInterface, signal};
}

} // namespace kestrelfen::login1
