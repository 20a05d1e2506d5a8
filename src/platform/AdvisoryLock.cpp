#include "platform/AdvisoryLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#if __has_include(<sys/sysmacros.h>) // elsewhere it is among the types
#include <sys/sysmacros.h>
#endif

namespace ardeo
{

namespace
{

SystemStatus lockFile(int file, int operation)
{
    int result = 0;
    do {
        result = flock(file, operation);
    } while (result != 0 && errno == EINTR);
    if (result == 0)
        return SystemStatus::ok;
    return errno == EWOULDBLOCK ? SystemStatus::preferencesBusy : SystemStatus::failed;
}

/// As the kernel's table has it, whose lines read "1: FLOCK  ADVISORY  WRITE 4711 00:19:1033 0 EOF".
LockHolder holderOf(int file)
{
    struct stat place = {};
    QFile table(QStringLiteral("/proc/locks"));
    if (fstat(file, &place) != 0 || !table.open(QIODevice::ReadOnly))
        return {};
    const auto hexadecimal = [](unsigned number) {
        return QByteArray::number(number, 16).rightJustified(2, '0');
    };
    const QByteArray ours = hexadecimal(major(place.st_dev)) + ':' + hexadecimal(minor(place.st_dev)) + ':' +
                            QByteArray::number(quint64(place.st_ino));
    const QList<QByteArray> lines = table.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.size() < 6 || words[1] != "FLOCK" || words[5] != ours)
            continue;
        // Who has taken it may have ended and left it to a child, or live in another process namespace.
        if (QFile::exists(QStringLiteral("/proc/") + QString::fromLatin1(words[4])))
            return {.processID = words[4].toLongLong()};
    }
    return {};
}

} // namespace

AdvisoryLock::AdvisoryLock(const QString& place, int flags, WaitingObserver observer)
    : m_place(QFile::encodeName(place))
    , m_flags(flags)
    , m_observer(std::move(observer))
{
}

SystemStatus AdvisoryLock::take(bool wait)
{
    m_waited = false;
    const int file = open(m_place.constData(), m_flags | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return SystemStatus::noPreferencesSession;
    SystemStatus status = lockFile(file, LOCK_EX | LOCK_NB);
    m_waited = status == SystemStatus::preferencesBusy && wait;
    if (m_waited) {
        m_observer(holderOf(file));
        status = lockFile(file, LOCK_EX);
        m_observer(std::nullopt);
    }
    if (status == SystemStatus::ok)
        m_file = file;
    else
        close(file);
    return status;
}

void AdvisoryLock::release()
{
    if (m_file >= 0)
        close(m_file);
    m_file = -1;
}

} // namespace ardeo
