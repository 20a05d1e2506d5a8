#include "app/Appearance.h"

#include "ui/elements/ArdeoStyle.h"
#include "ui/elements/Style.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

namespace ardeo
{

namespace
{

/// On Wayland the toolkit draws some windows' frames itself, in the colours of the moment when it began to.
void redrawFrames()
{
    if (!QGuiApplication::platformName().startsWith(QStringLiteral("wayland")))
        return;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        const Qt::WindowFlags flags = window->flags();
        if (window->frameMargins().isNull())
            continue;
        window->setFlags(flags | Qt::FramelessWindowHint);
        window->setFlags(flags);
    }
}

} // namespace

Appearance::Appearance()
    : m_paletteScheme(QApplication::palette().color(QPalette::Window).lightness() < 128 ? ColorScheme::dark
                                                                                        : ColorScheme::light)
{
    QApplication::setStyle(new ArdeoStyle);
    QObject::connect(&m_desktop, &DesktopAppearance::changed, &m_desktop, [this] { follow(); });
    follow();
}

void Appearance::follow()
{
    auto* style = static_cast<ArdeoStyle*>(QApplication::style());
    style->setReducedMotion(m_desktop.wantsReducedMotion());
    style->setTextScale(m_desktop.textScale());
    QApplication::setFont(look::font(TextStyle::body)); // menus and tool tips, too
    const bool dark = m_desktop.isDark().value_or(m_paletteScheme == ColorScheme::dark);
    QApplication::setPalette(look::palette(dark ? ColorScheme::dark : ColorScheme::light));
    QEvent restyled(QEvent::StyleChange);
    for (QWidget* widget : QApplication::allWidgets())
        QApplication::sendEvent(widget, &restyled);
    redrawFrames();
}

} // namespace ardeo
