#include "app/Ardeo_IPConfigApp.h"

#include "app/MainMenu.h"
#include "app/Notice.h"
#include "app/WindowHider.h"
#include "ui/elements/Style.h"
#include "ui/elements/SystemWords.h"
#include "ui/sheets/NoticePanel.h"
#include "ui/windows/ContentView.h"
#include "ui/windows/HelpView.h"
#include "ui/windows/ShortcutsView.h"

#include <QApplication>
#include <QShortcut>

namespace ardeo
{

namespace
{

constexpr QSize defaultSize(900, 680);
constexpr QSize helpSize(620, 640);
constexpr QSize shortcutsSize(520, 540);
constexpr int smallestHeight = 200;

/// Fills the window with the content, and has Ctrl+W ask it to close.
void fillWindow(QMainWindow& window, QWidget* content)
{
    window.setCentralWidget(content);
    QObject::connect(new QShortcut(keys::close, &window), &QShortcut::activated, &window, &QWidget::close);
}

/// A window beside the main one; its width is its content's, and Escape closes it, too.
QWidget* makeWindow(const QString& title, QSize size, QWidget* content)
{
    auto* window = new QMainWindow;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(title);
    fillWindow(*window, content);
    new QShortcut(Qt::Key_Escape, window, window, &QWidget::close);
    look::followTextSize(window, [window, size] { window->setFixedWidth(look::scaled(size.width())); });
    window->setMinimumHeight(smallestHeight);
    window->resize(window->width(), size.height());
    return window;
}

} // namespace

Ardeo_IPConfigApp::Ardeo_IPConfigApp(Platform& platform)
    : vm(MainViewModel::create(platform))
    , m_platform(platform)
{
    platform.userDefaults->couldNotStore = &showNotice;
    setUpMainWindow();
}

Ardeo_IPConfigApp::~Ardeo_IPConfigApp()
{
    for (const QPointer<QWidget>& window : m_windows)
        delete window.data();
}

void Ardeo_IPConfigApp::setUpMainWindow()
{
    auto* content =
        new ContentView(*vm, *m_platform.clock, notifications, [this](const QString& id) { openWindow(id); });
    m_mainWindow.setWindowTitle(QStringLiteral("Ardeo IP Config"));
    fillWindow(m_mainWindow, content);
    m_mainWindow.setMenuBar(makeMainMenu({.vm = *vm,
                                          .notifications = notifications,
                                          .workspace = *m_platform.workspace,
                                          .showAboutPanel = [this] { showAboutPanel(); }}));
    WindowHider::makeView(appDelegate)->setParent(&m_mainWindow);
    m_mainWindow.resize(defaultSize);
}

void Ardeo_IPConfigApp::openWindow(const QString& id)
{
    QPointer<QWidget>& window = m_windows[id];
    if (!window && id == QStringLiteral("help")) {
        window = makeWindow(tr("Ardeo IP Config Help"), helpSize, new HelpView(*m_platform.clock));
    } else if (!window && id == QStringLiteral("shortcuts")) {
        window = makeWindow(tr("Keyboard Shortcuts"), shortcutsSize,
                            new ShortcutsView(shortcutSections(), *m_platform.clock));
    }
    if (window)
        bringToFront(*window);
}

void Ardeo_IPConfigApp::showAboutPanel()
{
    if (!m_aboutPanel) {
        // A path has lines of its own, which may break between its folders, but not at the hyphens of their
        // names.
        const QString system = QString(m_platform.description)
                                   .replace(QStringLiteral(" ("), QStringLiteral("\n("))
                                   .replace(u'-', QStringLiteral("-\u2060"));
        m_aboutPanel = new NoticePanel(
            tr("About Ardeo IP Config"),
            tr("Version %1\nWorks on: %2").arg(QApplication::applicationVersion(), system), &m_mainWindow);
    }
    bringToFront(*m_aboutPanel);
}

} // namespace ardeo
