#include "ui/background/BackgroundPage.h"

#include "ui/background/MaterialPanel.h"
#include "ui/elements/CardScrollArea.h"
#include "ui/elements/PushButton.h"
#include "ui/elements/Stack.h"

#include <QStyle>

namespace ardeo
{

BackgroundPage::BackgroundPage(Clock& clock, int width, int padding, QWidget* parent)
    : QWidget(parent)
    , m_padding(padding)
    , m_background(new NeuralNetworkBackground(clock, this))
{
    look::followTextSize(this, [this, width] { setFixedWidth(look::scaled(width)); });
    m_background->setCovered([this] { return covered(); });
}

void BackgroundPage::setContent(QWidget* content)
{
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    auto* padded = new QWidget;
    auto* stack = columnIn(padded, 0, {m_padding, m_padding, m_padding - bar, m_padding});
    stack->addWidget(content);
    stack->addStretch();
    auto* scroll = new CardScrollArea(padded);
    scroll->setFocusPolicy(Qt::StrongFocus); // nothing else on the page takes the keys that scroll
    columnIn(this, 0)->addWidget(scroll);
    for (auto* panel : findChildren<MaterialPanel*>())
        panel->setBackground(m_background);
}

QRegion BackgroundPage::covered() const
{
    QRegion region;
    for (const auto* widget : findChildren<QWidget*>()) {
        // Of what is below a button, only its corners are seen.
        const bool covers =
            qobject_cast<const MaterialPanel*>(widget) || qobject_cast<const PushButton*>(widget);
        if (covers && widget->isVisible())
            region += QRect(widget->mapTo(this, QPoint()), widget->size()) & rect();
    }
    return region;
}

void BackgroundPage::resizeEvent(QResizeEvent*)
{
    m_background->setGeometry(rect());
}

} // namespace ardeo
