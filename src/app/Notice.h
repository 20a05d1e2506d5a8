#pragma once

#include <QString>

namespace ardeo
{

/// Tells the user a sentence, in a window of its own that keeps nobody from going on.
void showNotice(const QString& sentence);

} // namespace ardeo
