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
    AdvisoryLock(const QString& place, int flags);
    AdvisoryLock(const AdvisoryLock&) = delete;
    AdvisoryLock& operator=(const AdvisoryLock&) = delete;
    ~AdvisoryLock() { release(); }

    /// With wait, blocks for as long as another one holds it; preferencesBusy where it is held, without.
    /// noPreferencesSession where the place cannot be opened.
    SystemStatus take(bool wait);
    void release();
    bool isTaken() const { return m_file >= 0; }

private:
    QByteArray m_place;
    int m_flags;
    int m_file = -1;
};

} // namespace ardeo
