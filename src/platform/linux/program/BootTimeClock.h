#pragma once

#include "platform/Clock.h"

namespace ardeo
{

/// The kernel's boot-time clock, which counts suspended time too.
class BootTimeClock final : public Clock
{
public:
    std::chrono::nanoseconds continuousTime() const override;
    double referenceTime() const override;
    QFuture<void> sleep(std::chrono::milliseconds duration) override;
};

} // namespace ardeo
