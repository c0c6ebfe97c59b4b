#pragma once

#include "platform/ports/Displays.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace kestrelfen {

/// The size of a surface in logical pixels, and how many physical ones each of them has.
struct LayerExtent {
    int width = 0;
    int height = 0;
    double scale = 1;

    friend bool operator==(const LayerExtent&, const LayerExtent&) = default;
};

/// Physical pixels of 32 bits, from the highest byte: alpha, red, green, blue, premultiplied. Not owned.
struct LayerPicture {
    const unsigned char* bytes = nullptr;
    std::ptrdiff_t bytesPerLine = 0;
    int width = 0;
    int height = 0;
};

/// What the pointer, or a finger, did over a surface.
struct LayerPointer {
    enum class Kind { move, press, release, leave };

    Kind kind = Kind::move;
    /// In logical pixels of the surface.
    double x = 0;
    double y = 0;
    /// On the desktop's own clock.
    std::uint32_t milliseconds = 0;
};

/// How far the pointer went over the desktop, in logical pixels, wherever the surface has gone meanwhile.
struct LayerTravel {
    double x = 0;
    double y = 0;
};

/// Surfaces of a desktop that lets a program put some above all windows, without window management: pixels go
/// in, sizes and the pointer come out. Main thread only.
class LayerSurfaces {
  public:
    /// Hears of one surface, from the event loop.
    class Client {
      public:
        virtual ~Client() = default;

        /// It has this extent from now on.
        virtual void resized(const LayerExtent& extent) = 0;
        /// The desktop waits for a picture, or has shown the last one.
        virtual void ready() = 0;
        virtual void pointer(const LayerPointer& pointer) = 0;
        virtual void travelled(const LayerTravel& travel) = 0;
    };

    /// Destroying it takes it away.
    class Surface {
      public:
        virtual ~Surface() = default;

        /// Whether a picture given now would be shown. Without any need for one nothing has to be given.
        virtual bool isReady() const = 0;
        /// Shows a picture of the extent told last, of which `changed`, in physical pixels, is new.
        virtual void show(const LayerPicture& picture, const ScreenRect& changed) = 0;
        /// Between a surface in the corner and the edges of what panels leave of the display.
        virtual void setMargins(int top, int right) = 0;
    };

    virtual ~LayerSurfaces() = default;

    /// Over the whole of a display and everything on it; null where there is none such.
    virtual std::unique_ptr<Surface> cover(const Display& display, Client& client) = 0;

    /// Of that size in the top right corner of the display that the person works on, above everything but
    /// what covers; it never takes the keyboard.
    virtual std::unique_ptr<Surface> putInCorner(int width, int height, Client& client) = 0;
};

} // namespace kestrelfen
