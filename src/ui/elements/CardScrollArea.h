#pragma once

#include <QScrollArea>

namespace ardeo
{

/// A vertical scroll area without a ground of its own, as wide as its content needs at least. Besides the
/// usual keys, Home and End scroll it, and a page leaves a line of the last one in sight.
class CardScrollArea final : public QScrollArea
{
    Q_OBJECT

public:
    explicit CardScrollArea(QWidget* content, QWidget* parent = nullptr);
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace ardeo
