#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

namespace ardeo
{

/// The program on the user's session bus, by the standard interface that desktops activate programs with:
/// there is one of it in a session, and all that others can do is have it show its window. Main thread.
class DesktopApplication final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    enum class Claim {
        /// This process is the one; also where there is no session bus.
        granted,
        /// Another one is, and has been asked to show its window.
        handedOver,
        /// Another one is, and does not answer.
        unanswered
    };

    /// Made before the QApplication, which takes what the launcher has told about this start.
    DesktopApplication();

    /// Makes this process the session's one, or hands over to the one that is.
    Claim claim();

Q_SIGNALS:
    void activated();

public Q_SLOTS:
    Q_SCRIPTABLE void Activate(const QVariantMap& platformData);
    /// No kind of file belongs to the program: the same as Activate.
    Q_SCRIPTABLE void Open(const QStringList& uris, const QVariantMap& platformData);
    /// The program has no actions of that sort: does nothing.
    Q_SCRIPTABLE void ActivateAction(const QString& name, const QVariantList& parameter,
                                     const QVariantMap& platformData);

private:
    Claim claimName(QDBusConnection& bus) const;

    /// What tells the desktop which click has started us; empty where there was none.
    QString m_startupIdentifier;
};

} // namespace ardeo
