#pragma once

#include "platform/ports/LayerSurfaces.hpp"

#include <QImage>

#include <vector>

namespace kestrelfen {

/// A desktop with layers, that answers when the test says so.
class FakeLayerSurfaces final : public LayerSurfaces {
  public:
    class Shown final : public Surface {
      public:
        Shown(FakeLayerSurfaces& owner, Client& client);
        ~Shown() override;

        bool isReady() const override { return isReady_; }
        void show(const LayerPicture& picture, const ScreenRect& changed) override;
        void setMargins(int top, int right) override {
            topMargin = top;
            rightMargin = right;
        }

        /// The desktop gives it that size and waits for a picture.
        void configure(const LayerExtent& extent);
        /// The desktop has shown the last picture.
        void finishFrame();
        void point(LayerPointer::Kind kind, const QPoint& place);
        void click(const QPoint& place);
        void travel(double x, double y) { client_.travelled({x, y}); }

        Display display;
        int width = 0;
        int height = 0;
        int topMargin = 0;
        int rightMargin = 0;
        int pictures = 0;
        /// The last picture, and what is seen of it by those who take over only what was said to be new.
        QImage given;
        QImage seen;

      private:
        FakeLayerSurfaces& owner_;
        Client& client_;
        bool isReady_ = false;
    };

    std::unique_ptr<Surface> cover(const Display& display, Client& client) override;
    std::unique_ptr<Surface> putInCorner(int width, int height, Client& client) override;

    /// Whether no display can be covered.
    bool refuses = false;
    /// Those that exist, in the order of their making.
    std::vector<Shown*> shown;
};

} // namespace kestrelfen
