#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <optional>

namespace kestrelfen {

/// A variable of the environment that has another value while this lives.
class EnvironmentValue {
  public:
    /// No value takes the variable away.
    EnvironmentValue(const char* name, const std::optional<QByteArray>& value) : name_(name) {
        if (qEnvironmentVariableIsSet(name)) {
            outer_ = qgetenv(name);
        }
        set(value);
    }
    EnvironmentValue(const EnvironmentValue&) = delete;
    EnvironmentValue& operator=(const EnvironmentValue&) = delete;
    ~EnvironmentValue() { set(outer_); }

  private:
    void set(const std::optional<QByteArray>& value) const {
        if (value) {
            qputenv(name_, *value);
        } else {
            qunsetenv(name_);
        }
    }

    const char* name_;
    std::optional<QByteArray> outer_;
};

} // namespace kestrelfen
