#pragma once

#include "platform/SystemConfiguration.h"

namespace ardeo
{

/// A lock between programs on a file or folder. It belongs to its holder, not to the disk: it vanishes with
/// the holder, however that one ends, and nothing that is written in the file can keep others out.
class AdvisoryLock
{
public:
    /// Flags are open's: how the place is opened, and whether it is created (readable for its owner alone).
    /// The observer is told of waiting.
    AdvisoryLock(const QString& place, int flags, WaitingObserver observer);
    AdvisoryLock(const AdvisoryLock&) = delete;
    AdvisoryLock& operator=(const AdvisoryLock&) = delete;
    ~AdvisoryLock() { release(); }

    /// With wait, blocks for as long as another one holds it; preferencesBusy where it is held, without.
    /// noPreferencesSession where the place cannot be opened.
    SystemStatus take(bool wait);
    /// Whether the lock that is held had to be waited for.
    bool wasWaitedFor() const { return m_waited; }
    void release();
    bool isTaken() const { return m_file >= 0; }

private:
    QByteArray m_place;
    int m_flags;
    WaitingObserver m_observer;
    int m_file = -1;
    bool m_waited = false;
};

} // namespace ardeo
