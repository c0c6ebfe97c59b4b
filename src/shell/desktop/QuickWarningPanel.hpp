#pragma once

#include "platform/ports/Platform.hpp"
#include "shell/OverlayWindows.hpp"
#include "ui/PreBreakWarningView/PreBreakWarningModel.hpp"

#include <QObject>
#include <QPoint>
#include <QQuickView>

namespace kestrelfen {

class QuickViews;

/// The warning card, which floats, never takes the focus and is dragged by its body. Main thread only.
class QuickWarningPanel final : public QObject, public OverlayWindows::WarningPanel {
    Q_OBJECT

  public:
    QuickWarningPanel(BreakEngine& engine, const Platform& platform, QuickViews& views, bool blended);

    int width() const override { return view_->width(); }
    void moveTo(int x, int y) override { view_->setPosition(x, y); }
    void show() override;

  protected:
    /// Notes where the pointer was at each event, which may be handled late.
    bool eventFilter(QObject* object, QEvent* event) override;

  private slots:
    void beginDrag();
    void drag();

  private:
    PreBreakWarningModel model_;
    std::unique_ptr<QQuickView> view_;
    QPoint pointer_;
    QPoint grip_;
};

} // namespace kestrelfen
