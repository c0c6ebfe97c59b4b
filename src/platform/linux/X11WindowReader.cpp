#include "platform/linux/X11WindowReader.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

constexpr std::uint32_t longestProperty = 4096;

X11WindowReader::Atoms readAtoms(const XConnection& connection) {
    X11WindowReader::Atoms atoms{.clientList = connection.atom("_NET_CLIENT_LIST"),
                                 .stacking = connection.atom("_NET_CLIENT_LIST_STACKING"),
                                 .active = connection.atom("_NET_ACTIVE_WINDOW"),
                                 .manager = connection.atom("_NET_SUPPORTING_WM_CHECK"),
                                 .state = connection.atom("_NET_WM_STATE"),
                                 .hidden = connection.atom("_NET_WM_STATE_HIDDEN"),
                                 .type = connection.atom("_NET_WM_WINDOW_TYPE"),
                                 .processIdentifier = connection.atom("_NET_WM_PID"),
                                 .gtkApplicationId = connection.atom("_GTK_APPLICATION_ID"),
                                 .typeDesktop = connection.atom("_NET_WM_WINDOW_TYPE_DESKTOP"),
                                 .specialTypes = {}};
    for (const char* const kind : {"DOCK", "TOOLBAR", "MENU", "SPLASH", "DROPDOWN_MENU", "POPUP_MENU",
                                   "TOOLTIP", "NOTIFICATION", "COMBO", "DND"}) {
        atoms.specialTypes.push_back(connection.atom(std::string("_NET_WM_WINDOW_TYPE_") + kind));
    }
    return atoms;
}

bool offersResources(const XConnection& connection) {
    const auto* const extension = xcb_get_extension_data(connection.raw(), &xcb_res_id);
    if (!extension || !extension->present) {
        return false;
    }
    const auto cookie = xcb_res_query_version(connection.raw(), 1, 2);
    const XPointer<xcb_res_query_version_reply_t> version(
        xcb_res_query_version_reply(connection.raw(), cookie, nullptr));
    return version && (version->server_major > 1 || version->server_minor >= 2);
}

/// The process as the machine numbers it, also where the program itself sees
/// another number.
std::optional<std::int32_t> processIn(const XConnection& connection,
                                      xcb_res_query_client_ids_cookie_t cookie) {
    const XPointer<xcb_res_query_client_ids_reply_t> reply(
        xcb_res_query_client_ids_reply(connection.raw(), cookie, nullptr));
    if (!reply) {
        return std::nullopt;
    }
    auto iterator = xcb_res_query_client_ids_ids_iterator(reply.get());
    if (iterator.rem == 0 || xcb_res_client_id_value_value_length(iterator.data) < 1) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(*xcb_res_client_id_value_value(iterator.data));
}

} // namespace

X11WindowReader::X11WindowReader(const XConnection& connection)
    : connection_(connection), atoms_(readAtoms(connection)), hasResources_(offersResources(connection)) {}

X11WindowReader::ListQuestions X11WindowReader::askLists() const {
    const xcb_window_t root = connection_.root();
    return {.manager = askProperty(root, atoms_.manager),
            .clients = askProperty(root, atoms_.clientList),
            .stacking = askProperty(root, atoms_.stacking),
            .active = askProperty(root, atoms_.active)};
}

X11WindowReader::Lists X11WindowReader::take(const ListQuestions& questions) const {
    const auto firstOf = [this](xcb_get_property_cookie_t question) {
        const auto found = numbers(question);
        return found.empty() ? xcb_window_t{XCB_WINDOW_NONE} : found.front();
    };
    Lists lists;
    lists.manager = firstOf(questions.manager);
    lists.clients = numbers(questions.clients);
    lists.stacking = numbers(questions.stacking);
    lists.active = firstOf(questions.active);
    return lists;
}

xcb_get_property_cookie_t X11WindowReader::askManager(xcb_window_t manager) const {
    return askProperty(manager, atoms_.manager);
}

bool X11WindowReader::takeIsManager(xcb_get_property_cookie_t question, xcb_window_t manager) const {
    const auto named = numbers(question);
    return manager != XCB_WINDOW_NONE && !named.empty() && named.front() == manager;
}

X11WindowReader::WindowQuestions X11WindowReader::ask(xcb_window_t window) const {
    xcb_connection_t* const raw = connection_.raw();
    const xcb_res_client_id_spec_t client{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    return {.window = window,
            .attributes = xcb_get_window_attributes(raw, window),
            .geometry = xcb_get_geometry(raw, window),
            .place = xcb_translate_coordinates(raw, window, connection_.root(), 0, 0),
            .className = askProperty(window, XCB_ATOM_WM_CLASS),
            .gtkApplicationId = askProperty(window, atoms_.gtkApplicationId),
            .type = askProperty(window, atoms_.type),
            .state = askProperty(window, atoms_.state),
            .processIdentifier = askProperty(window, atoms_.processIdentifier),
            .client = hasResources_ ? xcb_res_query_client_ids(raw, 1, &client)
                                    : xcb_res_query_client_ids_cookie_t{0}};
}

/// Takes every answer, also of a window that is gone.
std::optional<X11WindowRecord> X11WindowReader::take(const WindowQuestions& questions) const {
    xcb_connection_t* const raw = connection_.raw();
    const XPointer<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(raw, questions.attributes, nullptr));
    const XPointer<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(raw, questions.geometry, nullptr));
    const XPointer<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(raw, questions.place, nullptr));
    const std::string names = text(questions.className);
    const auto types = numbers(questions.type);
    const auto states = numbers(questions.state);
    const auto told = numbers(questions.processIdentifier);
    const auto real = hasResources_ ? processIn(connection_, questions.client) : std::nullopt;
    X11WindowRecord record;
    record.window = questions.window;
    record.clues.gtkApplicationId = text(questions.gtkApplicationId);
    record.clues.instanceName = names.substr(0, names.find('\0'));
    record.clues.className = names.size() > record.clues.instanceName.size()
                                 ? names.substr(record.clues.instanceName.size() + 1)
                                 : "";
    record.clues.className.resize(std::min(record.clues.className.size(), record.clues.className.find('\0')));
    if (real || !told.empty()) {
        record.clues.processIdentifier = real ? *real : static_cast<std::int32_t>(told.front());
    }
    record.kind = kindOf(types);
    if (!attributes || !geometry) {
        return std::nullopt;
    }
    record.isShown = attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
                     std::find(states.begin(), states.end(), atoms_.hidden) == states.end();
    if (place) {
        record.bounds = ScreenRect{place->dst_x, place->dst_y, geometry->width, geometry->height};
    }
    return record;
}

X11WindowRecord::Kind X11WindowReader::kindOf(const std::vector<std::uint32_t>& types) const {
    if (types.empty()) {
        return X11WindowRecord::Kind::normal;
    }
    if (types.front() == atoms_.typeDesktop) {
        return X11WindowRecord::Kind::desktop;
    }
    const auto& special = atoms_.specialTypes;
    return std::find(special.begin(), special.end(), types.front()) == special.end()
               ? X11WindowRecord::Kind::normal
               : X11WindowRecord::Kind::special;
}

xcb_get_property_cookie_t X11WindowReader::askProperty(xcb_window_t window, xcb_atom_t property) const {
    return xcb_get_property(connection_.raw(), 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0,
                            longestProperty);
}

std::vector<std::uint32_t> X11WindowReader::numbers(xcb_get_property_cookie_t cookie) const {
    const XPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.raw(), cookie, nullptr));
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto* const first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

std::string X11WindowReader::text(xcb_get_property_cookie_t cookie) const {
    const XPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection_.raw(), cookie, nullptr));
    if (!reply || reply->format != 8) {
        return {};
    }
    const auto* const first = static_cast<const char*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

} // namespace kestrelfen
