#include "platform/linux/program/BootTimeClock.h"

#include <QDateTime>
#include <QPromise>
#include <QSocketNotifier>

#include <ctime>
#include <memory>
#include <sys/timerfd.h>
#include <unistd.h>

namespace ardeo
{

std::chrono::nanoseconds BootTimeClock::continuousTime() const
{
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec);
}

double BootTimeClock::referenceTime() const
{
    constexpr qint64 referenceDate = 978'307'200'000; // milliseconds from the Unix epoch to it
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch() - referenceDate) / 1000;
}

QFuture<void> BootTimeClock::sleep(std::chrono::milliseconds duration)
{
    auto promise = std::make_shared<QPromise<void>>();
    promise->start();
    QFuture<void> future = promise->future();

    const int timer = timerfd_create(CLOCK_BOOTTIME, TFD_CLOEXEC | TFD_NONBLOCK);
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(duration);
    const std::chrono::nanoseconds rest = duration - seconds;
    // A time of zero would disarm the timer instead of firing it.
    const long nanoseconds = duration.count() > 0 ? static_cast<long>(rest.count()) : 1;
    const itimerspec when{.it_interval = {}, .it_value = {.tv_sec = seconds.count(), .tv_nsec = nanoseconds}};
    if (timer < 0 || timerfd_settime(timer, 0, &when, nullptr) != 0) {
        if (timer >= 0)
            close(timer);
        promise->future().cancel();
        promise->finish();
        return future;
    }
    auto* notifier = new QSocketNotifier(timer, QSocketNotifier::Read);
    QObject::connect(notifier, &QSocketNotifier::activated, notifier, [notifier, timer, promise] {
        notifier->setEnabled(false);
        notifier->deleteLater();
        close(timer);
        promise->finish();
    });
    return future;
}

} // namespace ardeo
