#include "platform/AdvisoryLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ardeo
{

AdvisoryLock::AdvisoryLock(const QString& place, int flags)
    : m_place(QFile::encodeName(place))
    , m_flags(flags)
{
}

SystemStatus AdvisoryLock::take(bool wait)
{
    const int file = open(m_place.constData(), m_flags | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        return SystemStatus::noPreferencesSession;
    int result = 0;
    do {
        result = flock(file, wait ? LOCK_EX : LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    if (result == 0) {
        m_file = file;
        return SystemStatus::ok;
    }
    const bool busy = errno == EWOULDBLOCK;
    close(file);
    return busy ? SystemStatus::preferencesBusy : SystemStatus::failed;
}

void AdvisoryLock::release()
{
    if (m_file >= 0)
        close(m_file);
    m_file = -1;
}

} // namespace ardeo
