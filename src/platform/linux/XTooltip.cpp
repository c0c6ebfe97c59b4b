#include "platform/linux/XTooltip.hpp"

#include "platform/linux/XPicture.hpp"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace kestrelfen {

namespace {

constexpr QColor paper(0x24, 0x26, 0x2b);
constexpr QColor edge(0x4a, 0x4d, 0x55);
constexpr QColor ink(0xf2, 0xf2, 0xf2);
constexpr int padding = 6;
/// Between the tooltip and what it belongs to.
constexpr int gap = 4;

QImage picture(const QString& text) {
    const qreal ratio = qGuiApp->devicePixelRatio();
    const QRect words = QFontMetrics(QGuiApplication::font()).boundingRect(QRect(), Qt::AlignLeft, text);
    const QSize size = words.size() + QSize(2 * padding, 2 * padding);
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(paper);
    QPainter painter(&image);
    painter.setPen(edge);
    painter.drawRect(QRect(QPoint(), size - QSize(1, 1)));
    painter.setPen(ink);
    painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, text);
    return image;
}

/// Below what it belongs to, or above where that lies in the lower half of the screen.
QRect beside(const QRect& place, QSize size, const xcb_screen_t& screen) {
    const bool isAbove = place.center().y() > screen.height_in_pixels / 2;
    const int y = isAbove ? place.top() - gap - size.height() : place.bottom() + 1 + gap;
    const int furthest = std::max(screen.width_in_pixels - size.width(), 0);
    return {QPoint(std::clamp(place.center().x() - size.width() / 2, 0, furthest), std::max(y, 0)), size};
}

} // namespace

void XTooltip::show(const std::string& text, const QRect& place) {
    const QImage image = picture(QString::fromStdString(text));
    placeWindow(beside(place, image.size(), connection_.screen()));
    putImage(connection_, window_, connection_.screen().root_depth, image);
    connection_.flush();
}

void XTooltip::hide() {
    if (isVisible()) {
        xcb_destroy_window(connection_.raw(), std::exchange(window_, xcb_window_t{XCB_NONE}));
        connection_.flush();
    }
}

void XTooltip::placeWindow(const QRect& frame) {
    if (isVisible()) {
        const std::array<std::uint32_t, 4> values{
            static_cast<std::uint32_t>(frame.x()), static_cast<std::uint32_t>(frame.y()),
            static_cast<std::uint32_t>(frame.width()), static_cast<std::uint32_t>(frame.height())};
        xcb_configure_window(connection_.raw(), window_,
                             XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                                 XCB_CONFIG_WINDOW_HEIGHT,
                             values.data());
        return;
    }
    window_ = xcb_generate_id(connection_.raw());
    const std::array<std::uint32_t, 3> values{1, 1, XCB_EVENT_MASK_EXPOSURE};
    xcb_create_window(connection_.raw(), XCB_COPY_FROM_PARENT, window_, connection_.root(),
                      static_cast<std::int16_t>(frame.x()), static_cast<std::int16_t>(frame.y()),
                      static_cast<std::uint16_t>(frame.width()), static_cast<std::uint16_t>(frame.height()),
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, connection_.screen().root_visual,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_SAVE_UNDER | XCB_CW_EVENT_MASK, values.data());
    describe();
    xcb_map_window(connection_.raw(), window_);
}

void XTooltip::describe() {
    const xcb_atom_t type = connection_.atom("_NET_WM_WINDOW_TYPE_TOOLTIP");
    xcb_change_property(connection_.raw(), XCB_PROP_MODE_REPLACE, window_,
                        connection_.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
    constexpr std::string_view name = "Kestrelfen tooltip";
    xcb_change_property(connection_.raw(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING,
                        8, static_cast<std::uint32_t>(name.size()), name.data());
}

} // namespace kestrelfen
