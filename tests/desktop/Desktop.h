#pragma once

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QProcess>
#include <QTest>

#include <atspi/atspi.h>
#include <memory>

// What somebody with assistive technology, a keyboard and a desktop has.

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using Node = std::unique_ptr<AtspiAccessible, Unref>;

using namespace Qt::StringLiterals;

inline QString textOf(char* text)
{
    const std::unique_ptr<char, decltype(&g_free)> owner(text, &g_free);
    return QString::fromUtf8(text);
}

/// What the command, of words without spaces, says on its standard output.
inline QString output(const QString& command)
{
    QProcess process;
    process.startCommand(command);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

inline bool hasState(AtspiAccessible* widget, AtspiStateType state)
{
    const std::unique_ptr<AtspiStateSet, Unref> set(atspi_accessible_get_state_set(widget));
    return atspi_state_set_contains(set.get(), state) != FALSE;
}

/// The widget of that role and name below the root, by default only one that is showing; null when there is
/// none.
inline Node find(AtspiAccessible* root, AtspiRole role, const QString& name, bool hiddenToo = false)
{
    const int count = atspi_accessible_get_child_count(root, nullptr);
    for (int i = 0; i < count; ++i) {
        Node child(atspi_accessible_get_child_at_index(root, i, nullptr));
        if (!child)
            continue;
        if (atspi_accessible_get_role(child.get(), nullptr) == role &&
            textOf(atspi_accessible_get_name(child.get(), nullptr)) == name &&
            (hiddenToo || hasState(child.get(), ATSPI_STATE_SHOWING)))
            return child;
        if (Node found = find(child.get(), role, name, hiddenToo))
            return found;
    }
    return nullptr;
}

inline Node find(AtspiRole role, const char* name, bool hiddenToo = false)
{
    atspi_accessible_clear_cache(nullptr);
    const Node desktop(atspi_get_desktop(0));
    atspi_accessible_clear_cache(desktop.get());
    return find(desktop.get(), role, QString::fromUtf8(name), hiddenToo);
}

inline bool isEnabled(const Node& node)
{
    return node && hasState(node.get(), ATSPI_STATE_ENABLED);
}

inline void key(unsigned symbol)
{
    atspi_generate_keyboard_event(static_cast<glong>(symbol), nullptr, ATSPI_KEY_SYM, nullptr);
}

inline void control(unsigned symbol)
{
    constexpr glong controlKey = 37; // its key code
    atspi_generate_keyboard_event(controlKey, nullptr, ATSPI_KEY_PRESS, nullptr);
    key(symbol);
    atspi_generate_keyboard_event(controlKey, nullptr, ATSPI_KEY_RELEASE, nullptr);
}

inline bool activate(const Node& node)
{
    const std::unique_ptr<AtspiAction, Unref> action(node ? atspi_accessible_get_action_iface(node.get())
                                                          : nullptr);
    return action && atspi_action_do_action(action.get(), 0, nullptr);
}

using SettingGroups = QMap<QString, QVariantMap>;

/// The desktop's portal, of a user who wants less motion: the window then stands still and answers quickly.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    bool asked = false;

    /// Takes the portal's place on the session bus.
    bool appear()
    {
        qDBusRegisterMetaType<SettingGroups>();
        QDBusConnection bus = QDBusConnection::sessionBus();
        return bus.registerService(u"org.freedesktop.portal.Desktop"_s) &&
               bus.registerObject(u"/org/freedesktop/portal/desktop"_s, this,
                                  QDBusConnection::ExportScriptableContents |
                                      QDBusConnection::ExportAdaptors);
    }

public Q_SLOTS:
    Q_SCRIPTABLE SettingGroups ReadAll(const QStringList&)
    {
        asked = true;
        return {{u"org.freedesktop.appearance"_s, {{u"reduced-motion"_s, 1U}}}};
    }

Q_SIGNALS:
    // The group, the key and the value; what is generated for the signal names them otherwise.
    Q_SCRIPTABLE void SettingChanged(const QString&, const QString&, const QDBusVariant&);
};
