#pragma once

#include "base/Scenes.hpp"
#include "platform/fake/FakePlatform.hpp"
#include "platform/ports/Compositor.hpp"
#include "platform/ports/EscapeKey.hpp"
#include "shell/AppDelegate.hpp"
#include "shell/desktop/QuickOverlayWindows.hpp"
#include "shell/desktop/QuickPopover.hpp"
#include "support/TemporaryFolder.hpp"

#include <QQuickItem>
#include <QQuickWindow>
#include <gtest/gtest.h>

namespace kestrelfen {

class FakeEscapeKey final : public EscapeKey {
  public:
    bool takesAll = false;
    bool takesAllKeys() const override { return takesAll; }

    std::unique_ptr<Handle> grab(std::function<void()> pressed) override {
        pressed_ = std::move(pressed);
        struct Grabbed final : Handle {
            explicit Grabbed(FakeEscapeKey& key) : key_(key) {}
            ~Grabbed() override { key_.pressed_ = nullptr; }
            FakeEscapeKey& key_;
        };
        return std::make_unique<Grabbed>(*this);
    }

    bool isGrabbed() const { return pressed_ != nullptr; }
    void press() const { pressed_(); }

  private:
    std::function<void()> pressed_;
};

class FakeCompositor final : public Compositor {
  public:
    bool blending = true;
    bool isBlending() const override { return blending; }
};

class FakePanels final : public Panels {
  public:
    std::vector<PanelStrip> strips() const override { return all; }

    std::vector<PanelStrip> all;
};

/// No windows, but what was asked of them.
class FakeSceneWindows final : public SceneWindows {
  public:
    std::vector<std::string> identifiers() const override { return {}; }
    void bringToFront(std::size_t /*index*/) override {}
    void open(Scene scene) override { opened.push_back(scene); }

    std::vector<Scene> opened;
};

/// The windows of the real face over a machine by hand.
class FaceTest : public testing::Test {
  protected:
    FaceTest();

    void run(int seconds);
    void drain();
    void settle();

    /// The windows that are shown, in the order of their places.
    static std::vector<QQuickWindow*> shownWindows();

    /// Every text that is shown in `window`, joined by line feeds.
    static QString textsIn(QQuickWindow* window);

    /// Everything that is shown in `window`.
    static std::vector<QQuickItem*> itemsIn(QQuickWindow* window);

    /// Where it is once everything has been laid out, which happens with the next frame.
    static QPoint centreOf(QQuickWindow* window, const QString& spokenLabel);
    void click(QQuickWindow* window, const QString& spokenLabel);

    FakePlatform machine_;
    FakeEscapeKey escapeKey_;
    FakeCompositor compositor_;
    QuickViews views_;
    QuickOverlayWindows windows_{machine_.ports(), views_, escapeKey_, compositor_};
    TemporaryFolder folder_;
    AppDelegate delegate_{machine_.ports(),
                          StoreConfiguration{folder_ / StoreConfiguration::fileName, {}, {}}, windows_};
    int quits_ = 0;
    FakeSceneWindows scenes_;
    FakePanels panels_;
    QuickPopover popover_{{delegate_.engine(), delegate_.screenTime(), delegate_.store(), delegate_.router(),
                           scenes_, [this] { ++quits_; }},
                          machine_.ports(),
                          views_,
                          {compositor_, panels_}};
};

} // namespace kestrelfen
