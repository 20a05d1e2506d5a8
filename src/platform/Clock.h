#pragma once

#include <QFuture>

#include <chrono>

namespace ardeo
{

/// Time, so that a test can drive it by hand. Used from the main thread; what time it is can be asked on any.
class Clock
{
public:
    virtual ~Clock() = default;
    /// Time since some fixed moment; goes on while the machine sleeps, and is never set back.
    virtual std::chrono::nanoseconds continuousTime() const = 0;
    /// The date, as seconds since 1 January 2001, 00:00:00 UTC.
    virtual double referenceTime() const = 0;
    /// Finishes on the main thread when that much continuous time has passed. Has finished at once,
    /// cancelled, where the system has no timer to give. Cancelling it does not end the wait.
    virtual QFuture<void> sleep(std::chrono::milliseconds duration) = 0;
};

} // namespace ardeo
