#pragma once

#include "platform/linux/BusDaemon.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/MockService.hpp"
#include "platform/linux/PortalRequests.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

/// A session bus with a portal on it that answers every call of one method: response 0 grants it, 1 is the
/// person's no. `results` is a Python dictionary.
class PortalMock {
  public:
    struct Call {
        const char* interface;
        const char* name;
        const char* signature;
    };

    PortalMock(const Call& call, int response, const QString& results = "{}")
        : portal_(daemon_, "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                  call.interface) {
        portal_.addMethod(call.name, call.signature, "o",
                          QString("handle = '/org/freedesktop/portal/desktop/request/1_1/' + "
                                  "str(args[-1]['handle_token'])\n"
                                  "self.AddObject(handle, 'org.freedesktop.portal.Request', {}, [])\n"
                                  "objects[handle].EmitSignal('org.freedesktop.portal.Request', "
                                  "'Response', 'ua{sv}', [dbus.UInt32(%1), dbus.Dictionary(%2, "
                                  "signature='sv')])\n"
                                  "ret = dbus.ObjectPath(handle)")
                              .arg(response)
                              .arg(results));
        EXPECT_TRUE(waitUntil([this] { return bus_.isConnected(); }));
    }

    BusDaemon& daemon() { return daemon_; }
    const MockService& portal() const { return portal_; }
    PortalRequests& requests() { return requests_; }

  private:
    BusDaemon daemon_{"DBUS_SESSION_BUS_ADDRESS"};
    MockService portal_;
    BusLink bus_{BusLink::Bus::session};
    PortalRequests requests_{bus_};
};

} // namespace kestrelfen
