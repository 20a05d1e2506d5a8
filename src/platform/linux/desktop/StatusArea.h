#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

namespace ardeo
{

/// The places where the desktop shows the icons of programs in the background: a status notifier host on the
/// session bus, and an X11 tray. Main thread; asking the bus blocks nobody.
class StatusArea final : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit StatusArea(QObject* parent = nullptr);

    /// Whether a status notifier host would show an icon; false until the first changed.
    bool hasNotifierHost() const { return m_hasNotifierHost; }
    /// Whether an X11 tray would.
    static bool hasTray();

Q_SIGNALS:
    /// The bus has told whether a host is there, and either may have come or gone since.
    void changed();

private Q_SLOTS:
    void askForHost();

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    bool m_isHostKnown = false;
    bool m_hasNotifierHost = false;
    /// What X11 calls the event that the tray has another owner; 0 where nobody tells.
    int m_trayEvent = 0;
};

} // namespace ardeo
