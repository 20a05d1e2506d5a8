#pragma once

#include <QScrollArea>

namespace ardeo
{

/// A vertical scroll area without a ground of its own.
class CardScrollArea final : public QScrollArea
{
    Q_OBJECT

public:
    explicit CardScrollArea(QWidget* content, QWidget* parent = nullptr);
};

} // namespace ardeo
