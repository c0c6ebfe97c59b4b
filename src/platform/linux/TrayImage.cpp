#include "platform/linux/TrayImage.hpp"

#include <QPainter>

#include <algorithm>

namespace kestrelfen {

namespace {

/// The smallest picture that needs no enlarging, else the largest; null when there is none.
const TrayPicture* bestFor(const std::vector<TrayPicture>& pictures, int side) {
    const TrayPicture* best = nullptr;
    for (const TrayPicture& picture : pictures) {
        const bool isBetter =
            !best || (best->size < side ? picture.size > best->size
                                        : picture.size >= side && picture.size < best->size);
        if (isBetter) {
            best = &picture;
        }
    }
    return best;
}

QImage imageOf(const TrayPicture& picture) {
    const auto* const bytes = reinterpret_cast<const uchar*>(picture.argb.data());
    return QImage(bytes, picture.size, picture.size, QImage::Format_ARGB32)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// On a grey of this value black and white lines stand out alike.
constexpr int evenGrey = 118;

} // namespace

QImage trayImage(const std::vector<TrayPicture>& pictures, QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const int side = std::min(size.width(), size.height());
    if (const TrayPicture* const picture = bestFor(pictures, side)) {
        const QImage scaled =
            imageOf(*picture).scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QPainter painter(&image);
        painter.drawImage((size.width() - side) / 2, (size.height() - side) / 2, scaled);
    }
    return image;
}

const std::vector<TrayPicture>& picturesFor(const TrayContent& content, std::optional<bool> isPanelDark) {
    if (!isPanelDark) {
        return content.pictures;
    }
    const auto& suited = *isPanelDark ? content.onDark : content.onLight;
    return suited.empty() ? content.pictures : suited;
}

bool isDarkPanel(const QImage& panel) {
    const QImage whole = panel.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return qGray(whole.pixel(0, 0)) < evenGrey;
}

} // namespace kestrelfen
