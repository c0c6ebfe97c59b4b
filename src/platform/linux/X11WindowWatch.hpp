#pragma once

#include "platform/linux/X11WindowReader.hpp"

#include <QTimer>

#include <unordered_map>

namespace kestrelfen {

/// Keeps the windows of the desktop and their programs in memory, brought up to
/// date by the X server's events. Waits for the server when it is made and
/// never after. Follows a window manager that goes and comes. Main thread only.
class X11WindowWatch {
  public:
    struct Window {
        X11WindowRecord record;
        Program program;
    };

    explicit X11WindowWatch(ProgramCatalogue& catalogue);

    /// Whether there is a window manager that tells.
    bool isAvailable() const { return isAvailable_; }

    /// In the order of their coming.
    const std::vector<Window>& windows() const { return windows_; }
    /// Numbers of windows, from the top to the bottom.
    const std::vector<xcb_window_t>& stacking() const { return stacking_; }
    /// Null when none is in front.
    const Window* active() const;
    const Window* find(xcb_window_t window) const;

    ProgramCatalogue& catalogue() const { return catalogue_; }

  private:
    void handle(const xcb_generic_event_t& event);
    void handleProperty(const xcb_property_notify_event_t& event);
    void refresh();
    void takeLists();
    void takeWindows();
    void adopt(std::vector<X11WindowRecord> records);
    void watch(xcb_window_t window);

    using Step = void (X11WindowWatch::*)();
    /// Sends what was asked, and takes the step once all of it is answered.
    void onceAnswered(Step step);
    void goOn();
    void awaitAnswers();

    /// What the server was asked in the reading that is under way.
    struct Reading {
        X11WindowReader::ListQuestions listQuestions{};
        X11WindowReader::Lists lists;
        xcb_get_property_cookie_t managerQuestion{};
        std::vector<X11WindowReader::WindowQuestions> windowQuestions;
    };

    ProgramCatalogue& catalogue_;
    XConnection connection_;
    std::optional<X11WindowReader> reader_;
    QTimer soon_;
    QTimer later_;
    Reading reading_;
    /// Null while nothing is being read.
    Step step_ = nullptr;
    xcb_get_input_focus_cookie_t lastQuestion_{};
    bool hasChangedMeanwhile_ = false;
    bool isAvailable_ = false;
    std::vector<Window> windows_;
    std::vector<xcb_window_t> stacking_;
    xcb_window_t active_ = XCB_WINDOW_NONE;
};

} // namespace kestrelfen
