#include "ui/GlassComponents/ModalLayer.hpp"

#include <QKeyEvent>
#include <QQuickWindow>

namespace kestrelfen {

namespace {

constexpr double overEverything = 1000;

/// The item that fills the window in which `item` is.
QQuickItem* outermost(QQuickItem* item) {
    while (item->parentItem() && item->parentItem()->parentItem()) {
        item = item->parentItem();
    }
    return item;
}

bool isTab(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

} // namespace

ModalLayer::ModalLayer(QQuickItem* parent) : QQuickItem(parent) {
    setFlag(ItemIsFocusScope);
    setVisible(false);
    setZ(overEverything);
}

ModalLayer::~ModalLayer() {
    if (filtered_) {
        filtered_->removeEventFilter(this);
    }
}

void ModalLayer::setOpen(bool isOpen) {
    if (isOpen == isOpen_) {
        return;
    }
    isOpen_ = isOpen;
    isOpen_ ? open() : close();
    emit isOpenChanged();
}

void ModalLayer::componentComplete() {
    QQuickItem::componentComplete();
    open();
}

void ModalLayer::itemChange(ItemChange change, const ItemChangeData& value) {
    QQuickItem::itemChange(change, value);
    if (change == ItemSceneChange && value.window) {
        open();
    }
}

/// Waits for its window if need be.
void ModalLayer::open() {
    if (!isOpen_ || isShown_ || !isComponentComplete() || !window() || !parentItem()) {
        return;
    }
    isShown_ = true;
    home_ = parentItem();
    focusedBefore_ = window()->activeFocusItem();
    filtered_ = window();
    filtered_->installEventFilter(this);
    coverAll();
    setVisible(true);
    forceActiveFocus(Qt::PopupFocusReason);
    emit opened();
}

void ModalLayer::coverAll() {
    QQuickItem* const all = outermost(parentItem());
    setParentItem(nullptr);
    setParentItem(all);
    setPosition(QPointF());
    setSize(all->size());
    const auto follow = [this, all] { setSize(all->size()); };
    connect(all, &QQuickItem::widthChanged, this, follow);
    connect(all, &QQuickItem::heightChanged, this, follow);
}

void ModalLayer::close() {
    if (!isShown_) {
        return;
    }
    isShown_ = false;
    if (filtered_) {
        filtered_->removeEventFilter(this);
    }
    disconnect(parentItem(), nullptr, this, nullptr);
    setVisible(false);
    setParentItem(home_);
    if (focusedBefore_ && focusedBefore_->isVisible()) {
        focusedBefore_->forceActiveFocus(Qt::PopupFocusReason);
    }
}

bool ModalLayer::eventFilter(QObject* object, QEvent* event) {
    if (isTab(*event)) {
        moveFocus(static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Tab);
        return true;
    }
    return QQuickItem::eventFilter(object, event);
}

void ModalLayer::moveFocus(bool forward) {
    QQuickItem* const start = window()->activeFocusItem() ? window()->activeFocusItem() : this;
    QQuickItem* next = start->nextItemInFocusChain(forward);
    while (next && next != start && !isAncestorOf(next)) {
        next = next->nextItemInFocusChain(forward);
    }
    if (next && isAncestorOf(next)) {
        next->forceActiveFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    }
}

} // namespace kestrelfen
