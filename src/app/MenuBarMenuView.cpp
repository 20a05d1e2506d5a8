#include "app/MenuBarMenuView.h"

#include "app/MainMenu.h"
#include "app/SystemTools.h"
#include "ui/elements/Binding.h"
#include "ui/windows/ContentView.h"

#include <QApplication>
#include <QCoroFuture>
#include <QPainter>
#include <QStyleOptionMenuItem>
#include <QWidgetAction>

namespace ardeo
{

namespace
{

using namespace std::chrono_literals;

/// The main window needs a moment to come up before another one may come before it.
constexpr auto shortcutsDelay = 150ms;

/// The text as the menu protocol shows it unchanged. The toolkit makes the first & of it the protocol's sign
/// for an access key, an underscore; further ones stay what they are, and the protocol takes a double
/// underscore for one.
QString verbatim(const QString& text)
{
    QString escaped = text;
    escaped.replace(u'_', QStringLiteral("__"));
    return escaped.contains(u'&') ? u'&' + escaped : escaped;
}

/// A line of a menu that cannot be chosen. The style draws it as it draws the entries, so that they align.
class MenuText final : public QWidget
{
public:
    MenuText(const QFont& font, Emphasis emphasis) : m_emphasis(emphasis) { setFont(font); }
    void setText(const QString& text)
    {
        m_text = text;
        setAccessibleName(text);
        updateGeometry();
        update();
    }
    QSize sizeHint() const override
    {
        const QStyleOptionMenuItem option = styleOption();
        const QSize content(fontMetrics().horizontalAdvance(m_text), option.fontMetrics.height());
        return style()->sizeFromContents(QStyle::CT_MenuItem, &option, content, this);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const QStyleOptionMenuItem option = styleOption();
        QPainter painter(this);
        style()->drawControl(QStyle::CE_MenuItem, &option, &painter, this);
    }

private:
    QStyleOptionMenuItem styleOption() const
    {
        QStyleOptionMenuItem option;
        option.initFrom(this);
        option.state = QStyle::State_Enabled;
        option.text = QString(m_text).replace(u'&', QStringLiteral("&&"));
        option.font = font();
        // As high as the entries: where the style begins a text depends on that.
        option.fontMetrics = QFontMetrics(QApplication::font("QMenu"));
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            option.palette.setColor(role, look::colours(this).of(m_emphasis));
        return option;
    }

    QString m_text;
    Emphasis m_emphasis;
};

} // namespace

template <typename Read>
void MenuBarMenuView::addText(const QFont& font, Emphasis emphasis, Read read)
{
    // The desktop draws the menu from the entries' texts; where we draw it, the line stands in for the
    // entry. Either passes by what is disabled.
    auto* entry = new QWidgetAction(this);
    entry->setEnabled(false);
    auto* label = new MenuText(font, emphasis);
    entry->setDefaultWidget(label);
    addAction(entry);
    bind(entry, read, [entry, label](const QString& text) {
        entry->setText(verbatim(text));
        entry->setVisible(!text.isEmpty());
        label->setText(text);
    });
}

MenuBarMenuView::MenuBarMenuView(MainViewModel& model, AppDelegate& appDelegate,
                                 NotificationCenter& notifications, Platform& platform)
    : vm(model)
    , m_appDelegate(appDelegate)
    , m_notifications(notifications)
    , m_clock(*platform.clock)
{
    connect(this, &QMenu::aboutToShow, this, [this] { vm.follow(this, true); });
    connect(this, &QMenu::aboutToHide, this, [this] { vm.follow(this, false); });
    addText(look::font(TextStyle::callout, QFont::DemiBold), Emphasis::primary, [this] {
        const std::optional<AdapterInfo> selected = vm.selectedAdapter.value();
        return selected ? selected->serviceName.string() : QString();
    });
    addText(look::monospacedFont(TextStyle::callout), Emphasis::secondary, [this] {
        const QString address = vm.currentConfig.value().ipAddress.string();
        return vm.selectedAdapter.value() ? address : QString();
    });
    QAction* divider = addSeparator();
    bind(
        divider, [this] { return vm.selectedAdapter.value().has_value(); },
        [divider](bool shown) { divider->setVisible(shown); });

    addAction(tr("Open Ardeo IP Config"), this, [this] { m_appDelegate.showMainWindow(); });
    addAction(tr("Keyboard Shortcuts…"), this, [this] { openShortcuts(); });
    addSeparator();
    Workspace& workspace = *platform.workspace;
    addAction(tr("Network Settings…"), this, [&workspace] { openNetworkSettings(workspace); });
    addAction(tr("Activity Monitor…"), this, [&workspace] { openActivityMonitor(workspace); });
    addSeparator();
    QAction* loginItem = addAction(QString(), this, [this] { vm.toggleLoginItem(); });
    bind(
        loginItem, [this] { return loginItemTitle(vm.isLoginItem.value()); },
        [loginItem](const QString& title) { loginItem->setText(title); });
    addSeparator();
    addAction(tr("Quit"), this, &quit);
}

QCoro::Task<> MenuBarMenuView::openShortcuts()
{
    m_appDelegate.showMainWindow();
    co_await m_clock.sleep(shortcutsDelay);
    m_notifications.post(openShortcutsNotification);
}

} // namespace ardeo
