#include "ui/BackgroundPage.h"

#include "ui/CardScrollArea.h"
#include "ui/MaterialPanel.h"

#include <QVBoxLayout>

namespace ardeo
{

namespace
{

constexpr double maxDist = 220;
constexpr double speed = 0.25;

} // namespace

BackgroundPage::BackgroundPage(Clock& clock, int width, int padding, QWidget* parent)
    : QWidget(parent)
    , m_padding(padding)
    , m_background(new NeuralNetworkBackground(clock, maxDist, speed, this))
{
    setFixedWidth(width);
    m_background->setCovered([this] { return covered(); });
}

void BackgroundPage::setContent(QWidget* content)
{
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    auto* padded = new QWidget;
    auto* stack = new QVBoxLayout(padded);
    stack->setContentsMargins(m_padding, m_padding, m_padding - bar, m_padding);
    stack->addWidget(content);
    stack->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new CardScrollArea(padded);
    scroll->setFocusPolicy(Qt::StrongFocus); // nothing else on the page takes the keys that scroll
    layout->addWidget(scroll);
    for (auto* panel : findChildren<MaterialPanel*>())
        panel->setBackground(m_background);
}

QRegion BackgroundPage::covered() const
{
    QRegion region;
    for (const auto* panel : findChildren<MaterialPanel*>())
        region += QRect(panel->mapTo(this, QPoint()), panel->size()) & rect();
    return region;
}

void BackgroundPage::resizeEvent(QResizeEvent*)
{
    m_background->setGeometry(rect());
}

} // namespace ardeo
