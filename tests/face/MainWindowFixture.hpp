#pragma once

#include "face/FaceTest.hpp"
#include "ui/MainWindowView/MainWindowModel.hpp"
#include "ui/OnboardingView/OnboardingModel.hpp"

#include <memory>
#include <string>

namespace kestrelfen {

/// The main window over a machine by hand, as large as it is at first.
class MainWindowFixture : public FaceTest {
  protected:
    QQuickWindow* open() {
        model_ = std::make_unique<MainWindowModel>(
            MainWindowSources{delegate_.engine(), delegate_.screenTime(), delegate_.store(),
                              delegate_.router(), scenes_},
            machine_.ports(), [this] {
                return std::make_unique<OnboardingModel>(machine_.ports(),
                                                         [this] { delegate_.finishOnboarding(); });
            });
        view_ = views_.make(QStringLiteral("MainWindowView.qml"),
                            {{"model", QVariant::fromValue<QObject*>(model_.get())}});
        view_->setResizeMode(QQuickView::SizeRootObjectToView);
        view_->resize(1040, 660);
        view_->show();
        settle();
        return view_.get();
    }

    void showTab(MainTab tab) {
        delegate_.router().setMainTab(tab);
        settle();
    }

    void addTask(const std::string& title) {
        delegate_.store()->createTask({.title = title, .notes = {}, .dueOn = {}, .now = machine_.clock.now()},
                                      {});
        settle();
    }

    /// So many seconds in the application of that name.
    void use(const std::string& name, int seconds) {
        machine_.applications.start(
            {.bundleIdentifier = "org." + name, .localizedName = name, .processIdentifier = 7});
        machine_.applications.setFrontmost(7);
        run(seconds);
        machine_.applications.setFrontmost({});
        run(1);
        machine_.applications.stop(7);
    }

    std::unique_ptr<MainWindowModel> model_;
    std::unique_ptr<QQuickView> view_;
};

} // namespace kestrelfen
