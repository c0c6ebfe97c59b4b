#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace kestrelfen {

/// A layer over everything else in its window while it is open. It takes the keyboard, keeps Tab within
/// itself and gives the keyboard back when it closes. Wherever it is declared, it lies over the outermost
/// item. Main thread only.
class ModalLayer : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isOpen READ isOpen WRITE setOpen NOTIFY isOpenChanged)

  public:
    explicit ModalLayer(QQuickItem* parent = nullptr);
    ~ModalLayer() override;

    bool isOpen() const { return isOpen_; }
    void setOpen(bool isOpen);

  signals:
    void isOpenChanged();
    /// It is shown, has its size and the keyboard.
    void opened();

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void componentComplete() override;

  private:
    void open();
    void close();
    void coverAll();
    void moveFocus(bool forward);

    bool isOpen_ = false;
    bool isShown_ = false;
    QPointer<QQuickItem> home_;
    QPointer<QQuickItem> focusedBefore_;
    QPointer<QQuickWindow> filtered_;
};

} // namespace kestrelfen
