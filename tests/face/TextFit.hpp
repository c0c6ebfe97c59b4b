#pragma once

#include <QQuickItem>
#include <QString>

#include <vector>

namespace kestrelfen {

/// Every fault of the texts that `root` shows, in words: cut short, larger than their place, outside of what
/// they stand on, or over another text. What holds one of `elidable`, which a person wrote, may be cut short.
/// A scrolled view may be higher than its place, not wider. While a layer lies over the rest, only what it
/// holds counts.
QStringList misfits(QQuickItem* root, const QStringList& elidable = {});

} // namespace kestrelfen
