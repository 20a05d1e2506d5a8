#include "platform/simulated/SimulatedConfiguration.h"

#include "platform/simulated/SimulatedState.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

#include <utility>

namespace ardeo
{

SimulatedConfiguration::SimulatedConfiguration(SimulatedMachine machine, const Clock& clock)
    : m_machine(std::move(machine))
    , m_clock(clock)
{
}

std::optional<Json> SimulatedConfiguration::read()
{
    auto machine = m_machine.read();
    // Whoever looks first finds what a machine would have taken back by itself, and so does everybody then.
    if (machine && takeBackOverdue(*machine, m_clock.continuousTime())) {
        AdvisoryLock lock = m_machine.lock([](const std::optional<LockHolder>&) {});
        if (lock.take(false) == SystemStatus::ok)
            machine = m_machine.readLocked(m_clock.continuousTime());
    }
    m_readable = machine.has_value();
    m_outcome = {machine ? SystemStatus::ok : SystemStatus::noStoreServer};
    return machine;
}

void SimulatedConfiguration::watch()
{
    // The file is replaced as a whole, which its folder tells; an editor may also write into it.
    const QString file = m_machine.file();
    m_watcher = std::make_unique<QFileSystemWatcher>(QStringList{file, QFileInfo(file).path()});
    const auto note = [this, file] {
        m_hasChanged = true;
        m_watcher->addPath(file); // as long as it is the old one, it is watched already
    };
    QObject::connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, note);
    QObject::connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, [this, file, note] {
        if (!m_watcher->files().contains(file))
            note();
    });
}

bool SimulatedConfiguration::awaitChange()
{
    if (!m_watcher) {
        watch();
        return true;
    }
    QEventLoop loop;
    const auto setWaiting = [this](QEventLoop* waiting) {
        const std::scoped_lock lock(m_waitingAccess);
        m_waiting = waiting;
    };
    const auto waitUntil = [&](auto condition) {
        while (!m_isInterrupted && !condition())
            loop.processEvents(QEventLoop::WaitForMoreEvents);
    };
    setWaiting(&loop);
    waitUntil([this] { return m_hasChanged; });
    QTimer interval;
    interval.setSingleShot(true);
    interval.start(changeInterval);
    waitUntil([&interval] { return !interval.isActive(); });
    setWaiting(nullptr);
    if (m_isInterrupted.exchange(false))
        return false;
    m_hasChanged = false;
    return true;
}

void SimulatedConfiguration::interrupt()
{
    m_isInterrupted = true;
    const std::scoped_lock lock(m_waitingAccess);
    if (m_waiting)
        m_waiting->wakeUp();
}

std::unique_ptr<Preferences> SimulatedConfiguration::open(bool authorized)
{
    const auto machine = read();
    if (!machine)
        return nullptr;
    return std::make_unique<SimulatedPreferences>(m_machine, *machine, m_clock, m_outcome, authorized,
                                                  waitingObserver());
}

std::unique_ptr<Preferences> SimulatedConfiguration::createPreferences(const QString& /*name*/)
{
    return open(false);
}

std::unique_ptr<Preferences>
SimulatedConfiguration::createPreferencesWithAuthorization(const QString& /*name*/,
                                                           AuthorizationRef authorization)
{
    return open(authorization.handle != 0);
}

std::unique_ptr<DynamicStore> SimulatedConfiguration::createDynamicStore(const QString& /*name*/)
{
    auto machine = read();
    return machine ? std::make_unique<SimulatedState>(std::move(*machine)) : nullptr;
}

} // namespace ardeo
