#include "ui/windows/ContentView.h"

#include "ui/elements/Stack.h"
#include "ui/elements/Style.h"
#include "ui/elements/Visibility.h"
#include "ui/panels/LeftPanel.h"
#include "ui/panels/RightPanel.h"

#include <QPainter>
#include <QSplitter>

#include <algorithm>
#include <utility>

namespace ardeo
{

namespace
{

constexpr int sidebarMinimum = 240;
constexpr int sidebarIdeal = 260;
constexpr int sidebarMaximum = 300;

/// The sidebar and what stands beside it, with a divider that is one point wide and yet can be taken hold of.
class Splitter final : public QSplitter
{
public:
    using QSplitter::QSplitter;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest) {
            // Large text, or a long name in a badge, needs more than the usual width.
            const int needed = widget(0)->minimumSizeHint().width();
            widget(0)->setMinimumWidth(std::max(sidebarMinimum, needed));
            widget(0)->setMaximumWidth(std::max(sidebarMaximum, needed));
        }
        return QSplitter::event(event);
    }
    class Handle final : public QSplitterHandle
    {
    public:
        using QSplitterHandle::QSplitterHandle;

    protected:
        void paintEvent(QPaintEvent*) override
        {
            QPainter painter(this);
            painter.fillRect(rect(), look::colours(this).sidebar);
            painter.fillRect(rect(), look::colours(this).separator);
        }
    };
    QSplitterHandle* createHandle() override { return new Handle(orientation(), this); }
};

} // namespace

ContentView::ContentView(MainViewModel& model, Clock& clock, NotificationCenter& notifications,
                         OpenWindow openWindow, QWidget* parent)
    : QWidget(parent)
    , vm(model)
{
    auto* columns = new Splitter(Qt::Horizontal);
    auto* sidebar = new LeftPanel(vm);
    auto* detail = new RightPanel(vm, clock);
    columns->addWidget(sidebar);
    columns->addWidget(detail);
    columns->setChildrenCollapsible(false);
    columns->setStretchFactor(0, 0);
    columns->setStretchFactor(1, 1);
    columns->setSizes({sidebarIdeal, 10'000});
    columnIn(this, 0)->addWidget(columns);
    auto* visibility = new Visibility(this);
    connect(visibility, &Visibility::changed, this,
            [this, visibility] { vm.follow(this, visibility->isSeen()); });
    connect(&notifications, &NotificationCenter::posted, this,
            [openWindow = std::move(openWindow)](const QString& name) {
                if (name == openHelpNotification)
                    openWindow(QStringLiteral("help"));
                else if (name == openShortcutsNotification)
                    openWindow(QStringLiteral("shortcuts"));
            });
}

void ContentView::showEvent(QShowEvent*)
{
    if (std::exchange(m_hasAppeared, true))
        return;
    setFocus(); // no control has it before the user has chosen one
    vm.loadAdapters();
}

} // namespace ardeo
