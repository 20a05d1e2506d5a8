#pragma once

#include "platform/SystemConfiguration.h"

#include <QMap>
#include <QSemaphore>

#include <atomic>

namespace ardeo
{

using namespace Qt::StringLiterals;

/// A system configuration made of plain values. It writes down the calls that matter in their order, and
/// refuses any step with any status; every other call resets the status, as the real library does.
class FakeSystemConfiguration final : public SystemConfiguration
{
public:
    struct Interface {
        std::optional<QString> bsdName, macAddress, displayName;
    };
    struct Service {
        std::optional<QString> name{}, id{};
        bool enabled = true;
        std::optional<Interface> interface = {};
        QMap<QString, std::optional<QVariant>> protocols = {{u"IPv4"_s, std::nullopt},
                                                            {u"DNS"_s, std::nullopt}};
        bool personal = false;
    };

    QList<Service> services;
    QMap<QString, QVariant> state;
    std::optional<QString> computerName = u"Test Machine"_s;
    /// What there is none of: "preferences", "set", "services" or "state".
    QStringList missing;
    /// Step ("lock", "commit", "apply") and the status that it is refused with.
    QMap<QString, qint32> refusals;
    QStringList calls;
    std::atomic<int> rests = 0;
    AuthorizationRef authorization;
    /// Every operation waits for it; a test that takes it all stalls them.
    QSemaphore gate{1000};

    void rest() override { ++rests; }
    /// Tells whoever waits that something has changed.
    void change() { m_changes.release(); }
    bool awaitChange() override
    {
        m_changes.acquire();
        return !m_isInterrupted.exchange(false);
    }
    void interrupt() override
    {
        if (!m_isInterrupted.exchange(true))
            m_changes.release();
    }
    std::unique_ptr<Preferences> createPreferences(const QString& name) override
    {
        return handle(name, u"preferences"_s);
    }
    std::unique_ptr<Preferences> createPreferencesWithAuthorization(const QString& name,
                                                                    AuthorizationRef reference) override
    {
        authorization = reference;
        calls << u"open"_s;
        return handle(name, u"preferences"_s);
    }
    std::unique_ptr<DynamicStore> createDynamicStore(const QString& name) override
    {
        return handle(name, u"state"_s);
    }
    qint32 error() const override { return m_status; }

private:
    struct FakeProtocol final : NetworkProtocol {
        FakeProtocol(FakeSystemConfiguration& owner, std::optional<QVariant>& place, QString type)
            : system(owner)
            , value(place)
            , name(std::move(type))
        {
        }
        std::optional<QVariant> configuration() const override { return value; }
        bool setConfiguration(const Dictionary& dictionary) override
        {
            value = dictionary;
            return system.step(u"set "_s + name);
        }
        bool changeConfiguration(const Dictionary& changes) override
        {
            value = changes;
            return system.step(u"change "_s + name);
        }
        FakeSystemConfiguration& system;
        std::optional<QVariant>& value;
        QString name;
    };
    struct FakeInterface final : NetworkInterface {
        explicit FakeInterface(Interface values) : interface(std::move(values)) {}
        std::optional<QString> bsdName() const override { return interface.bsdName; }
        std::optional<QString> hardwareAddressString() const override { return interface.macAddress; }
        std::optional<QString> localizedDisplayName() const override { return interface.displayName; }
        Interface interface;
    };
    struct FakeService final : NetworkService {
        FakeService(FakeSystemConfiguration& owner, Service& place) : system(owner), service(place) {}
        std::optional<QString> name() const override { return service.name; }
        std::optional<QString> serviceID() const override { return service.id; }
        bool isEnabled() const override { return service.enabled; }
        bool isPersonal() const override { return service.personal; }
        bool hasChanges() const override { return true; }
        bool setEnabled(bool enabled) override
        {
            service.enabled = enabled;
            return system.step(u"enable"_s);
        }
        std::shared_ptr<NetworkInterface> interface() const override
        {
            return service.interface ? std::make_shared<FakeInterface>(*service.interface) : nullptr;
        }
        std::shared_ptr<NetworkProtocol> protocol(const QString& type) const override
        {
            const auto found = service.protocols.find(type);
            return found == service.protocols.end() ? nullptr
                                                    : std::make_shared<FakeProtocol>(system, *found, type);
        }
        FakeSystemConfiguration& system;
        Service& service;
    };
    /// Whatever is asked for.
    struct Handle final : Preferences, NetworkSet, DynamicStore {
        explicit Handle(FakeSystemConfiguration& owner) : system(owner) {}
        /// Its own, owned by nobody else: the preferences outlive what is got from them.
        std::shared_ptr<NetworkSet> currentSet() override
        {
            return {std::shared_ptr<void>(), system.missing.contains(u"set"_s) ? nullptr : this};
        }
        std::optional<std::vector<std::shared_ptr<NetworkService>>> services() const override
        {
            std::vector<std::shared_ptr<NetworkService>> list;
            for (Service& service : system.services)
                list.push_back(std::make_shared<FakeService>(system, service));
            return system.missing.contains(u"services"_s) ? std::nullopt : std::optional(list);
        }
        bool lock(bool wait) override { return system.step(wait ? u"lock"_s : u"try lock"_s); }
        bool commitChanges() override { return system.step(u"commit"_s); }
        bool applyChanges() override { return system.step(u"apply"_s); }
        void beginTrial(std::chrono::seconds time) override { system.step(u"try %1 s"_s.arg(time.count())); }
        bool endTrial(const QString&, bool keep) override { return system.step(keep ? u"keep"_s : u"end"_s); }
        bool unlock() override { return system.step(u"unlock"_s); }
        std::optional<QVariant> value(const QString& key) override
        {
            return system.state.contains(key) ? std::optional(system.state.value(key)) : std::nullopt;
        }
        std::optional<QString> computerName() override { return system.computerName; }
        FakeSystemConfiguration& system;
    };

    std::unique_ptr<Handle> handle(const QString& name, const QString& what)
    {
        Q_ASSERT(name == u"Ardeo-IPConfig"_s);
        gate.acquire();
        gate.release();
        return missing.contains(what) ? nullptr : std::make_unique<Handle>(*this);
    }

    bool step(const QString& name)
    {
        calls << name;
        m_status = refusals.value(name, 0);
        return m_status == 0;
    }

    qint32 m_status = 0;
    QSemaphore m_changes;
    std::atomic<bool> m_isInterrupted = false;
};

} // namespace ardeo
