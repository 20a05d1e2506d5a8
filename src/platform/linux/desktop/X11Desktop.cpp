#include "platform/linux/desktop/X11Desktop.h"

#include <QGuiApplication>
#include <QWindow>

#include <cstdlib>
#include <memory>
#include <string_view>
#include <xcb/xcb.h>

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

} // namespace

bool hasX11Tray()
{
    xcb_connection_t* display = connection();
    if (!display)
        return false;
    const auto cookie = xcb_get_selection_owner(display, atom(display, "_NET_SYSTEM_TRAY_S0"));
    const Owned<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(display, cookie, nullptr), &std::free);
    return reply && reply->owner != XCB_WINDOW_NONE;
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
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    xcb_send_event(display, 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(display);
}

} // namespace ardeo
