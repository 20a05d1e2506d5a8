#include "platform/linux/desktop/X11Desktop.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>
#include <xcb/xfixes.h>

namespace ardeo
{

namespace
{

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_connection_t* connection()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t* display, std::string_view name)
{
    const auto cookie = xcb_intern_atom(display, 0, static_cast<uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(display, cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t rootWindow(xcb_connection_t* display)
{
    return xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
}

xcb_atom_t tray(xcb_connection_t* display)
{
    return atom(display, "_NET_SYSTEM_TRAY_S0");
}

} // namespace

bool hasX11Tray()
{
    xcb_connection_t* display = connection();
    if (!display)
        return false;
    const auto cookie = xcb_get_selection_owner(display, tray(display));
    const Owned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(display, cookie, nullptr), &std::free);
    return reply && reply->owner != XCB_WINDOW_NONE;
}

int watchX11Tray()
{
    xcb_connection_t* display = connection();
    if (!display)
        return 0;
    const Owned<xcb_xfixes_query_version_reply_t> version(
        xcb_xfixes_query_version_reply(display, xcb_xfixes_query_version(display, 1, 0), nullptr),
        &std::free);
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(display, &xcb_xfixes_id);
    if (!version || !extension)
        return 0;
    xcb_xfixes_select_selection_input(display, rootWindow(display), tray(display),
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    xcb_flush(display);
    return extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
}

bool isX11Event(const void* event, int number)
{
    constexpr int sentByAClient = 0x80;
    return (static_cast<const xcb_generic_event_t*>(event)->response_type & ~sentByAClient) == number;
}

void endStartup(const QByteArray& identifier)
{
    xcb_connection_t* display = connection();
    if (!display || identifier.isEmpty())
        return;
    // The text with a zero at its end, in messages of twenty bytes from a window that nobody sees.
    QByteArray text =
        "remove: ID=\"" + QByteArray(identifier).replace('\\', "\\\\").replace('"', "\\\"") + '"';
    text.append('\0');
    const xcb_window_t root = rootWindow(display);
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 8;
    event.window = xcb_generate_id(display);
    event.type = atom(display, "_NET_STARTUP_INFO_BEGIN");
    xcb_create_window(display, XCB_COPY_FROM_PARENT, event.window, root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    constexpr qsizetype part = sizeof event.data.data8;
    for (qsizetype begin = 0; begin < text.size(); begin += part) {
        std::ranges::fill(event.data.data8, uint8_t{0});
        std::ranges::copy(text.sliced(begin, std::min(part, text.size() - begin)), event.data.data8);
        xcb_send_event(display, 0, root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&event));
        event.type = atom(display, "_NET_STARTUP_INFO");
    }
    xcb_destroy_window(display, event.window);
    xcb_flush(display);
}

void activateIgnoringOtherApps(QWindow& window)
{
    window.requestActivate();
    xcb_connection_t* display = connection();
    if (!display)
        return;
    // A window manager that guards the focus declines what a program asks for itself, but not what the user
    // does in a panel; a menu bar menu and a second start are just that.
    constexpr uint32_t fromThePanel = 2;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = static_cast<xcb_window_t>(window.winId());
    event.type = atom(display, "_NET_ACTIVE_WINDOW");
    event.data.data32[0] = fromThePanel;
    event.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(display, 0, rootWindow(display),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(display);
}

} // namespace ardeo
