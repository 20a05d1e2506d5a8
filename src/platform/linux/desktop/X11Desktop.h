#pragma once

class QWindow;

namespace ardeo
{

/// Whether an X11 tray shows icons; false on any other display.
bool hasX11Tray();

/// Brings the window to the front, even if another program is active. Elsewhere than on X11 it asks the
/// desktop, which may decline.
void activateIgnoringOtherApps(QWindow& window);

} // namespace ardeo
