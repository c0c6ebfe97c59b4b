#include "platform/linux/X11WindowWatch.hpp"

#include <xcb/xcbext.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace kestrelfen {

namespace {

/// For a window that is being moved: it tells of every step.
constexpr std::chrono::milliseconds settling(250);

constexpr std::uint8_t eventMask = 0x7f;

} // namespace

X11WindowWatch::X11WindowWatch(ProgramCatalogue& catalogue) : catalogue_(catalogue) {
    if (connection_.isBroken()) {
        return;
    }
    for (QTimer* const timer : {&soon_, &later_}) {
        timer->setSingleShot(true);
        QObject::connect(timer, &QTimer::timeout, timer, [this] { refresh(); });
    }
    reader_.emplace(connection_);
    const std::uint32_t properties = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection_.raw(), connection_.root(), XCB_CW_EVENT_MASK, &properties);
    connection_.listen([this](const xcb_generic_event_t& event) { handle(event); },
                       [this] {
                           isAvailable_ = false;
                           soon_.stop();
                           later_.stop();
                       },
                       [this] { goOn(); });
    refresh();
    awaitAnswers();
}

const X11WindowWatch::Window* X11WindowWatch::find(xcb_window_t window) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [window](const Window& each) { return each.record.window == window; });
    return found == windows_.end() ? nullptr : &*found;
}

const X11WindowWatch::Window* X11WindowWatch::active() const {
    return active_ == XCB_WINDOW_NONE ? nullptr : find(active_);
}

void X11WindowWatch::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & eventMask) {
    case XCB_PROPERTY_NOTIFY:
        handleProperty(reinterpret_cast<const xcb_property_notify_event_t&>(event));
        return;
    case XCB_MAP_NOTIFY:
    case XCB_UNMAP_NOTIFY:
    case XCB_DESTROY_NOTIFY:
        soon_.start(0);
        return;
    case XCB_CONFIGURE_NOTIFY:
        if (!later_.isActive()) {
            later_.start(settling);
        }
        return;
    default:
        return;
    }
}

void X11WindowWatch::handleProperty(const xcb_property_notify_event_t& event) {
    const auto& atoms = reader_->atoms();
    const auto means = {atoms.clientList,
                        atoms.stacking,
                        atoms.active,
                        atoms.state,
                        atoms.type,
                        atoms.processIdentifier,
                        atoms.gtkApplicationId,
                        static_cast<xcb_atom_t>(XCB_ATOM_WM_CLASS)};
    if (std::find(means.begin(), means.end(), event.atom) != means.end()) {
        soon_.start(0);
    }
}

void X11WindowWatch::refresh() {
    if (connection_.isBroken()) {
        return;
    }
    if (step_) {
        hasChangedMeanwhile_ = true;
        return;
    }
    reading_ = {};
    reading_.listQuestions = reader_->askLists();
    onceAnswered(&X11WindowWatch::takeLists);
}

void X11WindowWatch::takeLists() {
    auto& lists = reading_.lists;
    lists = reader_->take(reading_.listQuestions);
    std::vector<xcb_window_t> wanted = lists.clients;
    if (lists.active != XCB_WINDOW_NONE &&
        std::find(wanted.begin(), wanted.end(), lists.active) == wanted.end()) {
        wanted.push_back(lists.active);
    }
    if (lists.manager != XCB_WINDOW_NONE) {
        watch(lists.manager);
    }
    reading_.managerQuestion = reader_->askManager(lists.manager);
    for (const xcb_window_t window : wanted) {
        watch(window);
        reading_.windowQuestions.push_back(reader_->ask(window));
    }
    onceAnswered(&X11WindowWatch::takeWindows);
}

void X11WindowWatch::takeWindows() {
    auto& lists = reading_.lists;
    isAvailable_ = reader_->takeIsManager(reading_.managerQuestion, lists.manager);
    std::vector<X11WindowRecord> records;
    for (const auto& questions : reading_.windowQuestions) {
        if (auto record = reader_->take(questions); record && isAvailable_) {
            records.push_back(*std::move(record));
        }
    }
    adopt(std::move(records));
    std::reverse(lists.stacking.begin(), lists.stacking.end());
    stacking_ = std::move(lists.stacking);
    active_ = lists.active;
    if (std::exchange(hasChangedMeanwhile_, false)) {
        refresh();
    }
}

/// Asks for the events of a window before it is read, so that no change falls
/// between. Known windows too: a new one may have the number of one that has
/// just gone.
void X11WindowWatch::watch(xcb_window_t window) {
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_.raw(), window, XCB_CW_EVENT_MASK, &events);
}

void X11WindowWatch::onceAnswered(Step step) {
    step_ = step;
    lastQuestion_ = xcb_get_input_focus(connection_.raw());
    connection_.flush();
}

/// The server answers in order: with the answer to the last question all others
/// are there.
void X11WindowWatch::goOn() {
    void* answer = nullptr;
    xcb_generic_error_t* error = nullptr;
    if (!step_ || xcb_poll_for_reply(connection_.raw(), lastQuestion_.sequence, &answer, &error) == 0) {
        return;
    }
    const XPointer<void> unusedAnswer(answer);
    const XPointer<xcb_generic_error_t> unusedError(error);
    (this->*std::exchange(step_, nullptr))();
}

void X11WindowWatch::awaitAnswers() {
    while (step_) {
        const XPointer<xcb_get_input_focus_reply_t> unused(
            xcb_get_input_focus_reply(connection_.raw(), lastQuestion_, nullptr));
        (this->*std::exchange(step_, nullptr))();
    }
}

void X11WindowWatch::adopt(std::vector<X11WindowRecord> records) {
    std::vector<Window> windows;
    for (X11WindowRecord& record : records) {
        const Window* const known = find(record.window);
        Program program =
            known && known->record.clues == record.clues ? known->program : catalogue_.identify(record.clues);
        windows.push_back({std::move(record), std::move(program)});
    }
    windows_ = std::move(windows);
}

} // namespace kestrelfen
