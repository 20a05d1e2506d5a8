#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>

namespace ardeo
{

/// Draws a symbol in a colour, sharp at any scale. The name is that of its drawing in resources/symbols.
void drawSymbol(QPainter& painter, const QRectF& rect, const QString& name, const QColor& colour);

/// The symbol as an icon in that colour.
QIcon symbolIcon(const QString& name, const QColor& colour);

/// The program's own icon.
QIcon applicationIcon();

} // namespace ardeo
