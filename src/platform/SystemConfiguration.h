#pragma once

#include <QString>
#include <QVariant>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace ardeo
{

/// An administrator's consent, as an opaque handle. Only the Authorization that made it can tell what is
/// behind it; everybody else passes it on.
struct AuthorizationRef {
    quint64 handle = 0;
    bool operator==(const AuthorizationRef&) const = default;
};

/// Status codes of the system configuration; they reach the user inside messages.
enum class SystemStatus : qint32 {
    ok = 0,
    failed = 1001,
    invalidArgument = 1002,
    accessError = 1003,
    noKey = 1004,
    noStoreServer = 2002,
    noPreferencesSession = 3001,
    preferencesBusy = 3002,
    needLock = 3003,
    locked = 3004,
    stale = 3005,
};

/// A settings dictionary as the system exchanges it: values are QString, bool, qint64, QStringList (or a
/// QVariantList) and QVariantMap, and keep their kinds (a true is not a 1). A reader must expect any kind
/// under any key.
using Dictionary = QVariantMap;

/// The settings of one service for one protocol.
class NetworkProtocol
{
public:
    virtual ~NetworkProtocol() = default;
    /// The settings as they stand in the preferences, normally a Dictionary; none where there are none.
    virtual std::optional<QVariant> configuration() const = 0;
    /// Asks for these settings as a whole, as a form does that shows one address and two servers. What the
    /// form did not change stays as it is, also what it cannot show (a second address, a third server, a
    /// method that counts as DHCP). Nothing is checked until the changes are committed.
    virtual bool setConfiguration(const Dictionary& configuration) = 0;
    /// Asks for those settings alone that the dictionary names; an invalid value takes one away. A method
    /// that is another one takes the addresses and the router of the old one along.
    virtual bool changeConfiguration(const Dictionary& changes) = 0;
};

/// A piece of network hardware, or what the system presents as such.
class NetworkInterface
{
public:
    virtual ~NetworkInterface() = default;
    /// The name the kernel knows it by, such as eth0.
    virtual std::optional<QString> bsdName() const = 0;
    virtual std::optional<QString> hardwareAddressString() const = 0;
    virtual std::optional<QString> localizedDisplayName() const = 0;
};

/// One configured network service, such as a wired connection or a VPN.
class NetworkService
{
public:
    virtual ~NetworkService() = default;
    virtual std::optional<QString> name() const = 0;
    virtual std::optional<QString> serviceID() const = 0;
    virtual bool isEnabled() const = 0;
    /// Whether it is its user's alone, and can be changed with the right for those.
    virtual bool isPersonal() const { return false; }
    /// Takes effect with commit and apply, like a changed protocol configuration.
    virtual bool setEnabled(bool enabled) = 0;
    /// Whether what was set for it would change what is saved, also where that cannot be read here. True for
    /// what the system will refuse.
    virtual bool hasChanges() const = 0;
    /// Until when a change of it that is on trial can be confirmed, in continuous time; none where none is.
    virtual std::optional<std::chrono::milliseconds> confirmBy() const { return std::nullopt; }
    /// Null for a service without an interface.
    virtual std::shared_ptr<NetworkInterface> interface() const = 0;
    /// The protocol of the given type ("IPv4", "DNS"); null where the service does not have it.
    virtual std::shared_ptr<NetworkProtocol> protocol(const QString& type) const = 0;
};

/// The services that are in use together.
class NetworkSet
{
public:
    virtual ~NetworkSet() = default;
    /// In the set's order; none when the list cannot be read.
    virtual std::optional<std::vector<std::shared_ptr<NetworkService>>> services() const = 0;
};

/// A handle on the system's network preferences: a consistent snapshot, and the transaction that changes it.
/// Sets, services and protocols got from it may be used as long as it lives. Dropping it gives up its lock.
class Preferences
{
public:
    virtual ~Preferences() = default;
    /// Null when there is none.
    virtual std::shared_ptr<NetworkSet> currentSet() = 0;

    // Each step of the transaction returns false when it is refused; SystemConfiguration::error() has the
    // reason.

    /// Keeps other writers out. With wait, blocks for as long as another one holds the lock.
    virtual bool lock(bool wait) = 0;
    /// Checks what was set and stores it: all of it, or nothing.
    virtual bool commitChanges() = 0;
    /// Makes the running system take what was committed.
    virtual bool applyChanges() = 0;
    /// Has the system take back by itself what is committed and applied from now on, on disk and on the
    /// network, unless it is confirmed within that time; also when whoever asked for it is gone by then.
    virtual void beginTrial(std::chrono::seconds time) = 0;
    /// Confirms the change of the service that is on trial, or takes it back at once.
    virtual bool endTrial(const QString& serviceID, bool keep) = 0;
    virtual bool unlock() = 0;
};

/// A handle on the live state of the network.
class DynamicStore
{
public:
    virtual ~DynamicStore() = default;
    /// The entry under a key such as "State:/Network/Interface/eth0/Link"; none where there is none.
    virtual std::optional<QVariant> value(const QString& key) = 0;
    virtual std::optional<QString> computerName() = 0;
};

/// Somebody who keeps others from changing the preferences.
struct LockHolder {
    /// Its process number, where that can be told.
    std::optional<qint64> processID;
    bool operator==(const LockHolder&) const = default;
};
using WaitingObserver = std::function<void(const std::optional<LockHolder>&)>;

/// What changes within that time is told at once.
inline constexpr std::chrono::milliseconds changeInterval(250);

/// The system's network configuration. All of it is used from one thread at a time and may block it; one
/// operation (all handles that live at the same time) answers within ten seconds, waiting for the lock and
/// for a prompt not counted.
class SystemConfiguration
{
public:
    virtual ~SystemConfiguration() = default;
    /// A read-only handle; null when the system cannot be read. The name says who asks.
    virtual std::unique_ptr<Preferences> createPreferences(const QString& name) = 0;
    /// A handle that may change the preferences; null when the system cannot be reached.
    virtual std::unique_ptr<Preferences>
    createPreferencesWithAuthorization(const QString& name, AuthorizationRef authorization) = 0;
    virtual std::unique_ptr<DynamicStore> createDynamicStore(const QString& name) = 0;
    /// Nothing will be asked for a while: gives up what was kept to answer the next operation sooner. Each
    /// operation is told how things are at its moment in any case.
    virtual void rest() {}
    /// Waits until the preferences or the live state may read differently from what was told before; false
    /// when it is interrupted first. The first wait after a rest tells of a change at once: nobody has
    /// listened until then.
    virtual bool awaitChange() = 0;
    /// Ends awaitChange, the one that goes on or else the next one. May be called from any thread.
    virtual void interrupt() = 0;
    /// Has the observer told who holds the lock that an operation begins to wait for, and none when it has
    /// it, on the thread of the operation. To be set before the first one.
    void observeWaiting(WaitingObserver observer) { m_waiting = std::move(observer); }
    /// The status of the last call of this library, as a code of SystemStatus.
    virtual qint32 error() const = 0;
    /// What the system itself said of that status, as a sentence; empty where it said nothing.
    virtual QString errorReason() const { return {}; }

protected:
    const WaitingObserver& waitingObserver() const { return m_waiting; }

private:
    WaitingObserver m_waiting = [](const std::optional<LockHolder>&) {};
};

} // namespace ardeo
