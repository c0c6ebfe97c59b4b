#pragma once

namespace kestrelfen {

/// Whether this program is the one that the person is working in.
class ProgramFocus {
  public:
    virtual ~ProgramFocus() = default;

    /// True while one of this program's windows has the keyboard focus.
    virtual bool isActive() const = 0;
};

} // namespace kestrelfen
