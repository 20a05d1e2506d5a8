#pragma once

#include "ui/elements/Style.h"

#include <QBoxLayout>

namespace ardeo
{

/// Lays out the parts of a widget one below the other, that many points apart; around them there is nothing
/// but the margins.
inline QVBoxLayout* columnIn(QWidget* widget, int spacing, const QMargins& margins = {})
{
    auto* column = new QVBoxLayout(widget);
    column->setContentsMargins(look::mirrored(margins));
    column->setSpacing(spacing);
    return column;
}

/// Lays out the parts of a widget one beside the other, in the same way.
inline QHBoxLayout* rowIn(QWidget* widget, int spacing, const QMargins& margins = {})
{
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(look::mirrored(margins));
    row->setSpacing(spacing);
    return row;
}

/// Has the gap between a symbol and its text, a row that stands in its widget, grow with the text.
inline QHBoxLayout* growing(QHBoxLayout* row)
{
    look::followTextSize(row->parentWidget(),
                         [row, usual = row->spacing()] { row->setSpacing(look::scaled(usual)); });
    return row;
}

/// A column as the next part of another layout.
inline QVBoxLayout* columnIn(QBoxLayout* layout, int spacing, int stretch = 0)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(spacing);
    layout->addLayout(column, stretch);
    return column;
}

/// A row as the next part of another layout.
inline QHBoxLayout* rowIn(QBoxLayout* layout, int spacing)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(spacing);
    layout->addLayout(row);
    return row;
}

} // namespace ardeo
