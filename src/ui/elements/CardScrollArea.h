#pragma once

#include <QScrollArea>

namespace ardeo
{

/// A vertical scroll area without a ground of its own. Besides the usual keys, Home and End scroll it.
class CardScrollArea final : public QScrollArea
{
    Q_OBJECT

public:
    explicit CardScrollArea(QWidget* content, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace ardeo
