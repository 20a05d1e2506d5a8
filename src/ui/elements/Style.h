#pragma once

#include "ui/elements/ColorScheme.h"

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QWidget>

#include <functional>

namespace ardeo
{

/// The sizes of text, on the user's own font.
enum class TextStyle {
    title,
    title2,
    title3,
    headline,
    body,
    callout,
    subheadline,
    footnote,
    caption,
    caption2
};

/// How much a text stands out.
enum class Emphasis { primary, secondary, tertiary };

/// The colours of one colour scheme.
struct Colours {
    QColor primary;
    QColor secondary;
    QColor tertiary;
    QColor teal;
    /// Teal as a ground for white text.
    QColor tealFill;
    QColor accent;
    QColor red;
    QColor green;
    QColor separator;
    QColor textBackground;
    QColor tertiaryFill;
    QColor window;
    QColor sidebar;
    /// What a card lays over the blurred ground below it.
    QColor material;
    QColor control;
    QColor controlHovered;
    QColor controlPressed;
    /// What a sheet lays over the rest of its window.
    QColor backdrop;

    const QColor& of(Emphasis emphasis) const;
};

/// The one place that says what things look like.
namespace look
{

/// The scheme that a widget is shown in, by its palette.
ColorScheme schemeOf(const QWidget* widget);
const Colours& colours(ColorScheme scheme);
inline const Colours& colours(const QWidget* widget)
{
    return colours(schemeOf(widget));
}
/// The palette that puts the whole program into a scheme.
QPalette palette(ColorScheme scheme);

QFont font(TextStyle style, int weight = -1);
QFont monospacedFont(TextStyle style, int weight = -1);

/// The whole points that so many points at the usual text size grow to along with the text.
int scaled(int points);
/// Does what depends on the size of text, now and whenever it changes while the widget lives.
void followTextSize(QWidget* widget, const std::function<void()>& action);

/// The height of a line of such text in points, without the room that some fonts keep for stacked accents.
int lineHeight(const QFont& font);

QColor withOpacity(QColor colour, double opacity);

/// The part of a widget's rectangle that begins and ends on whole device pixels, so that edges are sharp at
/// any scale.
QRectF deviceAligned(const QWidget* widget, const QRectF& rect);

/// Where a part of a widget is whose place is given for a language that runs from left to right.
QRectF mirrored(const QWidget* widget, const QRectF& part);
/// The margins of a layout that are given for such a language.
QMargins mirrored(const QMargins& margins);

/// A rounded rectangle whose corners run smoothly into its sides.
QPainterPath continuousRect(const QRectF& rect, double radius);
/// Strokes the shape within its bounds.
void strokeInside(QPainter& painter, const QRectF& rect, double radius, const QColor& colour, double width);

/// The time that a transition may take, in milliseconds: none where the user wants less motion.
int duration(const QWidget* widget, int milliseconds);

/// A line between two parts of a view.
QWidget* divider(QWidget* parent, double opacity = 1);

} // namespace look

} // namespace ardeo
