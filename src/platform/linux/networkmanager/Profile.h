#pragma once

#include "platform/ServiceChanges.h"
#include "platform/linux/networkmanager/GLibLoop.h"
#include "platform/linux/networkmanager/LibNM.h"

#include <set>
#include <string>

namespace ardeo
{

/// A connection profile, and what was set for it through the handle.
struct Profile {
    GRef<NMRemoteConnection> connection;
    ServiceChanges changes;
    /// The profile as it was when it was first changed here: what a commit expects to find; null before a
    /// change and after its commit.
    GRef<NMConnection> seen;
    /// The profile as it was committed; null before.
    GRef<NMConnection> committed;
    /// The paths of its activations before the commit. Others have begun with what was committed.
    std::set<std::string> activationsBefore;
};

} // namespace ardeo
