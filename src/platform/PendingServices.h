#pragma once

#include "platform/SystemConfiguration.h"

#include <functional>
#include <utility>

namespace ardeo
{

// What the platforms' handles have in common: services with changes that wait to be committed.

/// The settings of a service for one protocol, as they are saved and as they will be.
class PendingProtocol final : public NetworkProtocol
{
public:
    using Differences = Dictionary (*)(const Dictionary& present, const Dictionary& wanted);
    /// Saved reads the settings; the changes are left in pending, whose owner is kept alive, after
    /// beforeChange.
    PendingProtocol(std::function<std::optional<QVariant>()> saved, Differences differences,
                    std::shared_ptr<std::optional<Dictionary>> pending, std::function<void()> beforeChange);
    std::optional<QVariant> configuration() const override;
    bool setConfiguration(const Dictionary& configuration) override;
    bool changeConfiguration(const Dictionary& changes) override;

private:
    std::function<std::optional<QVariant>()> m_saved;
    Differences m_differences;
    std::shared_ptr<std::optional<Dictionary>> m_pending;
    std::function<void()> m_beforeChange;
};

/// Those services; none when the list could not be read.
class PendingSet final : public NetworkSet
{
public:
    explicit PendingSet(std::optional<std::vector<std::shared_ptr<NetworkService>>> services)
        : m_services(std::move(services))
    {
    }
    std::optional<std::vector<std::shared_ptr<NetworkService>>> services() const override
    {
        return m_services;
    }

private:
    std::optional<std::vector<std::shared_ptr<NetworkService>>> m_services;
};

} // namespace ardeo
