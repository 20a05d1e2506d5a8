#pragma once

#include "fakes/FakeSystemConfiguration.h"
#include "platform/Platform.h"

#include <QCoreApplication>
#include <QPromise>

#include <atomic>

namespace ardeo
{

/// A clock that a test drives by hand.
class FakeClock final : public Clock
{
public:
    /// Milliseconds of every sleep so far.
    QList<qint64> asked;

    std::chrono::nanoseconds continuousTime() const override { return m_now; }
    double referenceTime() const override
    {
        return 800e6 + std::chrono::duration<double>(continuousTime()).count();
    }
    QFuture<void> sleep(std::chrono::milliseconds duration) override
    {
        auto promise = std::make_shared<QPromise<void>>();
        promise->start();
        m_sleepers.append({continuousTime() + duration, promise});
        asked.append(duration.count());
        return promise->future();
    }
    qsizetype sleepers() const { return m_sleepers.size(); }
    void advance(std::chrono::milliseconds duration)
    {
        m_now = continuousTime() + duration;
        m_sleepers.removeIf([this](const Sleeper& sleeper) {
            if (sleeper.until <= continuousTime())
                sleeper.promise->finish();
            return sleeper.until <= continuousTime();
        });
    }

private:
    struct Sleeper {
        std::chrono::nanoseconds until;
        std::shared_ptr<QPromise<void>> promise;
    };
    std::atomic<std::chrono::nanoseconds> m_now{}; // the worker asks too
    QList<Sleeper> m_sleepers;
};

/// Lets go of the object and returns when those who still hold it, all waiting for the clock, have done so
/// too.
template <typename Object>
void letGo(std::shared_ptr<Object>& object, FakeClock& clock)
{
    for (const std::weak_ptr<Object> alive = std::exchange(object, nullptr); !alive.expired();) {
        clock.advance(std::chrono::seconds(10));
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

class FakeAuthorization final : public Authorization
{
public:
    bool available = true;
    bool granted = true;
    int prompts = 0;
    QStringList rights;
    quint32 flags = 0;
    QList<quint64> live;

    std::optional<AuthorizationRef> create() override
    {
        if (!available)
            return std::nullopt;
        live.append(++m_last);
        return AuthorizationRef{m_last};
    }
    bool copyRights(AuthorizationRef, const QString& right, quint32 asked) override
    {
        ++prompts;
        flags = asked;
        rights.append(right);
        return granted;
    }
    void free(AuthorizationRef reference, quint32) override { live.removeOne(reference.handle); }

private:
    quint64 m_last = 0;
};

class FakeUserDefaults final : public UserDefaults
{
public:
    QMap<QString, QByteArray> values;
    QStringList unreadable;
    int writes = 0;
    /// Drops what is set.
    bool full = false;
    std::optional<QByteArray> data(const QString& key) const override
    {
        return values.contains(key) && !isUnreadable(key) ? std::optional(values.value(key)) : std::nullopt;
    }
    bool isUnreadable(const QString& key) const override { return unreadable.contains(key); }
    void set(const QByteArray& data, const QString& key) override
    {
        ++writes;
        if (!full)
            values.insert(key, data);
    }
};

class FakeLoginItem final : public LoginItem
{
public:
    Status current = Status::notRegistered;
    /// What a call leads to.
    std::optional<QString> failure;
    Status next = Status::enabled;
    QStringList calls;
    Status status() const override { return current; }
    std::optional<QString> registerItem() override { return take("register"); }
    std::optional<QString> unregisterItem() override { return take("unregister"); }

private:
    std::optional<QString> take(const char* call)
    {
        calls.append(QLatin1String(call));
        current = next;
        return failure;
    }
};

/// Answers every panel with the same place.
class FakeFilePanels final : public FilePanels
{
public:
    std::optional<QString> place;
    std::optional<QString> askWhereToSave(const QString&, const QString&) override { return place; }
    std::optional<QString> askWhatToOpen(const QString&) override { return place; }
};

/// Opens everything, and nothing.
class FakeWorkspace final : public Workspace
{
public:
    bool open(SystemTool) override { return true; }
};

/// A platform of fakes, and each of them.
struct FakePlatform {
    FakeSystemConfiguration* system = new FakeSystemConfiguration;
    FakeAuthorization* authorization = new FakeAuthorization;
    FakeLoginItem* loginItem = new FakeLoginItem;
    FakeUserDefaults* userDefaults = new FakeUserDefaults;
    FakeClock* clock = new FakeClock;
    FakeFilePanels* filePanels = new FakeFilePanels;
    Platform platform{std::unique_ptr<SystemConfiguration>(system),
                      std::unique_ptr<Authorization>(authorization),
                      std::unique_ptr<LoginItem>(loginItem),
                      std::unique_ptr<UserDefaults>(userDefaults),
                      std::unique_ptr<Clock>(clock),
                      std::unique_ptr<FilePanels>(filePanels),
                      std::make_unique<FakeWorkspace>(),
                      u"fakes"_s};
};

} // namespace ardeo
