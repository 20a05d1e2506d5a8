#pragma once

#include "platform/linux/networkmanager/GLibLoop.h"
#include "platform/linux/networkmanager/LibNM.h"

#include <chrono>
#include <optional>
#include <string>

namespace ardeo
{

/// What whoever ends a trial needs to know. The profile carries it along, in memory only: a computer that is
/// started anew knows what is on disk, which is the profile as it was.
struct ProfileTrial {
    /// Until when it can be confirmed, in continuous time.
    std::chrono::milliseconds confirmBy;
    /// The daemon's checkpoint, which may be gone.
    std::string checkpoint;
    /// Whether the profile was on disk before.
    bool wasSaved = true;
    /// Its settings that a change may touch, as they were.
    GRef<NMConnection> before;
};

/// The trial that the profile is on; none where there is none, or where somebody has tampered with it.
std::optional<ProfileTrial> trialOf(NMConnection* profile);

/// Has the changed profile carry a trial that leads back to what it was before.
void putOnTrial(NMConnection* changed, NMConnection* before, std::chrono::milliseconds confirmBy,
                const char* checkpoint, bool wasSaved);
/// Makes the profile what it was before its trial. What others have changed meanwhile stays.
void takeBack(NMConnection* profile, const ProfileTrial& trial);
/// Takes the trial off the profile, which stays as it is.
void confirm(NMConnection* profile);

/// Continuous time.
std::chrono::milliseconds continuousTime();

} // namespace ardeo
