#pragma once

class QByteArray;
class QWindow;

namespace ardeo
{

/// Whether an X11 tray shows icons; false on any other display.
bool hasX11Tray();

/// Has X11 tell whenever the tray has come or gone, and gives the number of that event; 0 on any other
/// display.
int watchX11Tray();

/// Whether the native event, on X11 only, is the one of that number.
bool isX11Event(const void* event, int number);

/// Tells the desktop that the start with this identifier, which a launcher has given it, has come to its end;
/// or its pointer would show for long that a program is being started. Elsewhere than on X11 it does nothing.
void endStartup(const QByteArray& identifier);

/// Brings the window to the front, even if another program is active. Elsewhere than on X11 it asks the
/// desktop, which may decline.
void activateIgnoringOtherApps(QWindow& window);

} // namespace ardeo
