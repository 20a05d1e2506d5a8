#pragma once

#include "platform/ServiceChanges.h"
#include "platform/simulated/SimulatedMachine.h"

namespace ardeo
{

/// A service as the handle saw it, and what was set for it since.
struct ServiceRecord {
    Json seen;
    ServiceChanges changes = {};
    bool committed = false;
    /// Whether what was committed asks for a lease anew.
    bool freshLease = false;
};

/// The record as one of the program's services.
std::shared_ptr<NetworkService> serviceOf(const std::shared_ptr<ServiceRecord>& record);

} // namespace ardeo
