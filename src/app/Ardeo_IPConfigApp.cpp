#include "app/Ardeo_IPConfigApp.h"

#include <QShortcut>
#include <QVBoxLayout>

namespace ardeo
{

namespace
{

constexpr QSize defaultSize(900, 680);
constexpr QSize minimumSize(720, 560);

} // namespace

void setUpMainWindow(QWidget& window, ContentView* content)
{
    window.setWindowTitle(QStringLiteral("Ardeo IP Config"));
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    window.setMinimumSize(minimumSize);
    window.resize(defaultSize);
}

Ardeo_IPConfigApp::Ardeo_IPConfigApp(Platform& platform)
    : m_paletteScheme(QApplication::palette().color(QPalette::Window).lightness() < 128 ? ColorScheme::dark
                                                                                        : ColorScheme::light)
    , vm(MainViewModel::create(platform))
{
    QApplication::setStyle(new ArdeoStyle);
    QObject::connect(&m_appearance, &DesktopAppearance::changed, &m_mainWindow,
                     [this] { followAppearance(); });
    followAppearance();
    setUpMainWindow(m_mainWindow, new ContentView(*vm, *platform.clock));
    addShortcuts();
}

void Ardeo_IPConfigApp::addShortcuts()
{
    // They work in every state of the window, also where its buttons are not shown.
    const auto add = [this](const QKeyCombination& keys, auto action) {
        QObject::connect(new QShortcut(keys, &m_mainWindow), &QShortcut::activated, &m_mainWindow, action);
    };
    add(Qt::CTRL | Qt::Key_R, [this] { vm->refreshAdapters(); });
    const auto apply = [this] {
        if (!vm->isApplying.value() && !vm->isLoading.value() && vm->selectedAdapter.value())
            vm->applyConfiguration();
    };
    add(Qt::CTRL | Qt::Key_Return, apply);
    add(Qt::CTRL | Qt::Key_Enter, apply);
}

void Ardeo_IPConfigApp::followAppearance()
{
    auto* style = static_cast<ArdeoStyle*>(QApplication::style());
    style->setReducedMotion(m_appearance.wantsReducedMotion());
    const bool dark = m_appearance.isDark().value_or(m_paletteScheme == ColorScheme::dark);
    QApplication::setPalette(look::palette(dark ? ColorScheme::dark : ColorScheme::light));
    QEvent restyled(QEvent::StyleChange);
    for (QWidget* widget : m_mainWindow.findChildren<QWidget*>())
        QApplication::sendEvent(widget, &restyled);
}

void Ardeo_IPConfigApp::showMainWindow()
{
    m_mainWindow.show();
    m_mainWindow.raise();
    m_mainWindow.activateWindow();
}

} // namespace ardeo
