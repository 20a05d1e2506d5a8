#pragma once

#include "platform/linux/desktop/DesktopAppearance.h"
#include "ui/elements/ColorScheme.h"

namespace ardeo
{

/// Puts the whole program into its style, and keeps it in the desktop's colour scheme, its size of text and
/// to the user's wish for less motion. Made after the QApplication, before its windows.
class Appearance final
{
public:
    Appearance();

private:
    void follow();

    /// The scheme where the desktop tells nothing about it.
    ColorScheme m_paletteScheme;
    DesktopAppearance m_desktop;
};

} // namespace ardeo
