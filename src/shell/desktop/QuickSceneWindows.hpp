#pragma once

#include "base/Scenes.hpp"

#include <QObject>
#include <QQuickView>
#include <QSize>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace kestrelfen {

class QuickViews;

/// The ordinary windows: at most one of each kind, made when it is first asked for and gone, with all that it
/// held, when it is closed. Main thread only.
class QuickSceneWindows final : public QObject, public SceneWindows {
    Q_OBJECT

  public:
    /// What a kind of window is made of.
    struct Face {
        QString view;
        QString title;
        QSize size;
        QSize minimumSize;
        /// Made before the view and gone after it: the object that it shows.
        std::function<std::unique_ptr<QObject>()> makeModel;
    };

    struct Desktop {
        /// Brings a window to the front.
        std::function<void(QWindow&)> raise;
        /// A window and all that it held have gone: their memory can be given back.
        std::function<void()> hasClosed;
    };

    /// `views` outlives this object.
    QuickSceneWindows(QuickViews& views, Desktop desktop);
    ~QuickSceneWindows() override;

    void setFace(Scene scene, Face face) { faces_[scene] = std::move(face); }

    std::vector<std::string> identifiers() const override;
    void bringToFront(std::size_t index) override;
    void open(Scene scene) override;

  private slots:
    void forgetClosed();

  private:
    /// The view, declared last, goes before the model that it shows.
    struct Window {
        Scene scene;
        std::unique_ptr<QObject> model;
        std::unique_ptr<QQuickView> view;
    };

    QuickViews& views_;
    Desktop desktop_;
    std::map<Scene, Face> faces_;
    std::list<Window> windows_;
};

} // namespace kestrelfen
