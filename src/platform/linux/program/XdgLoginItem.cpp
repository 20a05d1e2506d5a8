#include "platform/linux/program/XdgLoginItem.h"

#include "platform/Platform.h"

#include <QSaveFile>

#include <glib.h>
#include <utility>

namespace ardeo
{

XdgLoginItem::XdgLoginItem(const QDir& autostartFolder, QString program)
    : m_folder(autostartFolder)
    , m_program(std::move(program))
    , m_entry(m_folder.filePath(QLatin1String(applicationIdentifier) + QStringLiteral(".desktop")))
{
}

QString XdgLoginItem::execLine() const
{
    // The entry's own quoting: a double-quoted text with a backslash before these characters, doubled once
    // more because a backslash in a desktop entry's text is itself an escape; and "%" starts a field code.
    QString quoted;
    for (const QChar c : m_program) {
        if (c == u'\\')
            quoted += QStringLiteral("\\\\\\\\");
        else if (c == u'"' || c == u'`' || c == u'$')
            quoted += QStringLiteral("\\\\") + c;
        else
            quoted += c == u'%' ? QStringLiteral("%%") : QString(c);
    }
    return u'"' + quoted + u'"';
}

LoginItem::Status XdgLoginItem::status() const
{
    if (!QFile::exists(m_entry))
        return Status::notRegistered;
    const std::unique_ptr<GKeyFile, decltype(&g_key_file_free)> entry(g_key_file_new(), &g_key_file_free);
    if (!g_key_file_load_from_file(entry.get(), QFile::encodeName(m_entry).constData(), G_KEY_FILE_NONE,
                                   nullptr))
        return Status::notFound;
    const auto flag = [&](const char* key) {
        return g_key_file_get_boolean(entry.get(), "Desktop Entry", key, nullptr) != FALSE;
    };
    const std::unique_ptr<char, decltype(&g_free)> exec(
        g_key_file_get_value(entry.get(), "Desktop Entry", "Exec", nullptr), &g_free);
    if (!exec || QString::fromUtf8(exec.get()) != execLine())
        return Status::notFound;
    const bool switchedOff = flag("Hidden") || (g_key_file_has_key(entry.get(), "Desktop Entry",
                                                                   "X-GNOME-Autostart-enabled", nullptr) &&
                                                !flag("X-GNOME-Autostart-enabled"));
    return switchedOff ? Status::requiresApproval : Status::enabled;
}

std::optional<QString> XdgLoginItem::registerItem()
{
    m_folder.mkpath(QStringLiteral("."));
    QSaveFile file(m_entry);
    const QString text =
        QStringLiteral("[Desktop Entry]\nType=Application\nName=Ardeo IP Config\nExec=%1\nIcon=%2\n"
                       "X-GNOME-Autostart-enabled=true\n")
            .arg(execLine(), QLatin1String(applicationIdentifier));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit())
        return file.errorString();
    return std::nullopt;
}

std::optional<QString> XdgLoginItem::unregisterItem()
{
    QFile file(m_entry);
    if (!file.remove())
        return file.errorString();
    return std::nullopt;
}

} // namespace ardeo
