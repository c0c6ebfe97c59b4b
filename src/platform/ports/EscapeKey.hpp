#pragma once

#include <functional>
#include <memory>

namespace kestrelfen {

/// The Escape key, heard whichever program has the keyboard focus.
class EscapeKey {
  public:
    /// Destroying it gives the key back.
    class Handle {
      public:
        virtual ~Handle() = default;
    };

    virtual ~EscapeKey() = default;

    /// Whether a grab takes every other key as well, because the desktop knows nothing finer.
    virtual bool takesAllKeys() const { return false; }

    /// From now on no other program gets Escape, and `pressed` is called on the main thread once for each
    /// press: not for the repetitions of a held key, nor for a key that was already down. Where the key
    /// cannot be had, nothing is ever called.
    virtual std::unique_ptr<Handle> grab(std::function<void()> pressed) = 0;
};

} // namespace kestrelfen
