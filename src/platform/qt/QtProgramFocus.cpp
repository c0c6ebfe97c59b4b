#include "platform/qt/QtProgramFocus.hpp"

#include <QGuiApplication>

namespace kestrelfen {

bool QtProgramFocus::isActive() const {
    return QGuiApplication::focusWindow() != nullptr;
}

} // namespace kestrelfen
