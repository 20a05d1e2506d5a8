#pragma once

#include "backend/Text.h"
#include "platform/ProtocolConfiguration.h"

#include <exception>

namespace ardeo
{

/// A failure with the one sentence that the user is shown.
class DescribedError : public std::exception
{
public:
    const QString& errorDescription() const { return m_description; }
    const char* what() const noexcept override { return m_utf8.constData(); }

protected:
    explicit DescribedError(const QString& description)
        : m_description(description)
        , m_utf8(description.toUtf8())
    {
    }

private:
    QString m_description;
    QByteArray m_utf8;
};

/// What the user is told while an action waits for another program.
inline QString waitingDescription(const LockHolder& holder)
{
    const QString sentence =
        QStringLiteral("Waiting for another program that is changing the network settings.");
    return holder.processID ? sentence + QStringLiteral(" It is process %1.").arg(*holder.processID)
                            : sentence;
}

/// Why a change of a service's configuration failed. The codes are the system configuration's own.
class ConfigError final : public DescribedError
{
public:
    enum class Case {
        lockFailed,
        serviceNotFound,
        protocolUnavailable,
        commitFailed,
        applyFailed,
        preferencesUnavailable
    };

    static ConfigError lockFailed(qint32 code)
    {
        return {Case::lockFailed, QStringLiteral("Cannot acquire preferences lock (SC %1).").arg(code)};
    }
    static ConfigError serviceNotFound(const QString& name)
    {
        return {Case::serviceNotFound, QStringLiteral("Service '") + name + QStringLiteral("' not found.")};
    }
    static ConfigError protocolUnavailable(const QString& name)
    {
        return {Case::protocolUnavailable,
                QStringLiteral("Protocol ") + name + QStringLiteral(" unavailable.")};
    }
    static ConfigError commitFailed(qint32 code, std::optional<SettingFault> fault = {})
    {
        ConfigError error{Case::commitFailed, QStringLiteral("Cannot save changes (SC %1).").arg(code)};
        error.m_fault = std::move(fault);
        return error;
    }
    static ConfigError applyFailed(qint32 code, std::optional<SettingFault> fault = {})
    {
        ConfigError error{Case::applyFailed, QStringLiteral("Cannot apply changes (SC %1).").arg(code)};
        error.m_fault = std::move(fault);
        return error;
    }
    static ConfigError preferencesUnavailable()
    {
        return {Case::preferencesUnavailable, QStringLiteral("Cannot open system network preferences.")};
    }

    Case errorCase() const { return m_case; }
    /// Which value was refused and why, or what else the system said.
    const std::optional<SettingFault>& fault() const { return m_fault; }

private:
    ConfigError(Case errorCase, const QString& description) : DescribedError(description), m_case(errorCase)
    {
    }

    Case m_case;
    std::optional<SettingFault> m_fault;
};

/// Why an administrator's consent was not obtained.
class AuthError final : public DescribedError
{
public:
    enum class Case { createFailed, denied };

    static AuthError createFailed()
    {
        return {Case::createFailed, QStringLiteral("Cannot create authorization reference.")};
    }
    static AuthError denied()
    {
        return {Case::denied, QStringLiteral("Admin authorization was denied or cancelled.")};
    }

    Case errorCase() const { return m_case; }

private:
    AuthError(Case errorCase, const QString& description) : DescribedError(description), m_case(errorCase) {}

    Case m_case;
};

} // namespace ardeo
