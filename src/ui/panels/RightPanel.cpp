#include "ui/panels/RightPanel.h"

#include "ui/elements/Binding.h"
#include "ui/elements/CardScrollArea.h"
#include "ui/elements/Controls.h"
#include "ui/elements/PushButton.h"
#include "ui/elements/Stack.h"
#include "ui/elements/SystemWords.h"
#include "ui/elements/TextLabel.h"
#include "ui/panels/ActionHeader.h"
#include "ui/panels/AdapterPropertiesCard.h"
#include "ui/panels/ProfilePropertiesCard.h"
#include "ui/sheets/ConfirmationDialog.h"

#include <QCoreApplication>
#include <QScrollBar>
#include <QStackedLayout>
#include <QStyle>
#include <QWheelEvent>

#include <array>

namespace ardeo
{

namespace
{

constexpr int smallestWidth = 460;

QWidget* makeEmptyState(MainViewModel& vm)
{
    auto* view = new QWidget;
    auto* stack = columnIn(view, 8);
    stack->addStretch();
    stack->addWidget(new SymbolView(QStringLiteral("network.slash"), 48,
                                    [](const Colours& colours) { return colours.secondary; }),
                     0, Qt::AlignHCenter);
    stack->addWidget(new TextLabel(RightPanel::tr("No Network Services"),
                                   look::font(TextStyle::title2, QFont::Bold), Emphasis::primary),
                     0, Qt::AlignHCenter);
    stack->addWidget(
        new TextLabel(inSystemWords(RightPanel::tr("No network services found on {thisComputer}.")),
                      look::font(TextStyle::subheadline), Emphasis::secondary),
        0, Qt::AlignHCenter);
    auto* trouble = new TextLabel(QString(), look::font(TextStyle::subheadline), Emphasis::secondary);
    trouble->setAlignment(Qt::AlignCenter);
    trouble->setWrapped();
    stack->addWidget(trouble);
    bind(
        trouble, [&vm] { return vm.trouble.value(); },
        [trouble](const std::optional<Text>& reason) {
            trouble->setText(reason.value_or(Text()));
            trouble->setVisible(reason.has_value());
        });
    stack->addStretch();
    return view;
}

QString nameOf(const std::optional<AdapterInfo>& adapter, const QString& otherwise)
{
    return adapter ? adapter->serviceName.string() : otherwise;
}

} // namespace

RightPanel::RightPanel(MainViewModel& model, Clock& clock, QWidget* parent)
    : QWidget(parent)
    , vm(model)
    , m_background(new NeuralNetworkBackground(clock, this))
{
    auto* layers = new QStackedLayout(this);
    layers->addWidget(makeContent());
    layers->addWidget(makeEmptyState(vm));
    bind(
        this, [this] { return vm.adapters.value().isEmpty() && !vm.isLoading.value(); },
        [layers](bool empty) { layers->setCurrentIndex(empty ? 1 : 0); });
    m_background->lower();
    m_background->setCovered([this] { return covered(); });
    followDisableConfirm();
}

QSize RightPanel::minimumSizeHint() const
{
    return QWidget::minimumSizeHint().expandedTo({smallestWidth, 0});
}

void RightPanel::resizeEvent(QResizeEvent*)
{
    m_background->setGeometry(rect());
}

void RightPanel::wheelEvent(QWheelEvent* event)
{
    QCoreApplication::sendEvent(m_cards->verticalScrollBar(), event);
}

QRegion RightPanel::covered() const
{
    QRegion region;
    for (const QWidget* widget : m_covering) {
        if (widget->isVisible())
            region += QRect(widget->mapTo(this, QPoint()), widget->size()) & rect();
    }
    return region;
}

QWidget* RightPanel::makeContent()
{
    auto* view = new QWidget;
    auto* stack = columnIn(view, 0);
    auto* header = new ActionHeader(vm);
    stack->addWidget(header);
    for (const QWidget* button : header->findChildren<PushButton*>())
        m_covering << button;

    auto* cards = new QWidget;
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    auto* column = columnIn(cards, 16, {20, 20, 20 - bar, 20});
    const std::array<Card*, 2> inOrder{new ProfilePropertiesCard(vm),
                                       new AdapterPropertiesCard(vm, showDisableConfirm)};
    for (Card* card : inOrder) {
        card->setBackground(m_background);
        column->addWidget(card);
        m_covering << card;
    }
    column->addStretch();
    m_cards = new CardScrollArea(cards);
    stack->addWidget(m_cards, 1);
    return view;
}

void RightPanel::followDisableConfirm()
{
    bind(
        this, [this] { return showDisableConfirm.value(); },
        [this](bool shown) {
            if (!shown)
                return;
            const auto adapter = vm.selectedAdapter.value();
            auto* confirmation = new ConfirmationDialog(
                tr("Disable %1?").arg(nameOf(adapter, tr("Adapter"))),
                tr("This will disconnect %1 from the network.").arg(nameOf(adapter, tr("the adapter"))),
                tr("Disable"), window());
            connect(confirmation, &QDialog::finished, this, [this](int result) {
                showDisableConfirm = false;
                if (result == QDialog::Accepted)
                    vm.setAdapterEnabled(false);
            });
            confirmation->show();
        });
}

} // namespace ardeo
