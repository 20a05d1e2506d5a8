#pragma once

namespace ardeo
{

/// The two ways the desktop can look.
enum class ColorScheme { light, dark };

} // namespace ardeo
