#pragma once

#include "app/AppDelegate.h"

namespace ardeo
{

/// Makes the window that it lies in the main window: one that hides when it is asked to close, and that has
/// a smallest size.
struct WindowHider {
    /// An invisible view to be put behind the main window's content. The delegate outlives it.
    static QWidget* makeView(AppDelegate& delegate);
};

} // namespace ardeo
