#pragma once

#include "backend/Text.h"
#include "platform/ProtocolConfiguration.h"

#include <QCoreApplication>

#include <exception>

namespace ardeo
{

/// A failure with the one sentence that the user is shown.
class DescribedError : public std::exception
{
    Q_DECLARE_TR_FUNCTIONS(ardeo::DescribedError)

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
    return holder.processID
               ? DescribedError::tr(
                     "Waiting for another program that is changing the network settings. It is process %1.")
                     .arg(*holder.processID)
               : DescribedError::tr("Waiting for another program that is changing the network settings.");
}

/// Why a change of a service's configuration failed. The codes are the system configuration's own.
class ConfigError final : public DescribedError
{
    Q_DECLARE_TR_FUNCTIONS(ardeo::ConfigError)

public:
    static ConfigError lockFailed(qint32 code)
    {
        return ConfigError(tr("Cannot acquire preferences lock (SC %1).").arg(code));
    }
    static ConfigError serviceNotFound(const QString& name)
    {
        return ConfigError(tr("Service '%1' not found.").arg(name));
    }
    static ConfigError protocolUnavailable(const QString& name)
    {
        return ConfigError(tr("Protocol %1 unavailable.").arg(name));
    }
    static ConfigError commitFailed(qint32 code, std::optional<SettingFault> fault = {})
    {
        ConfigError error(tr("Cannot save changes (SC %1).").arg(code));
        error.m_fault = std::move(fault);
        return error;
    }
    static ConfigError applyFailed(qint32 code, std::optional<SettingFault> fault = {})
    {
        ConfigError error(tr("Cannot apply changes (SC %1).").arg(code));
        error.m_fault = std::move(fault);
        return error;
    }
    static ConfigError preferencesUnavailable()
    {
        return ConfigError(tr("Cannot open system network preferences."));
    }

    /// Which value was refused and why, or what else the system said.
    const std::optional<SettingFault>& fault() const { return m_fault; }

private:
    explicit ConfigError(const QString& description) : DescribedError(description) {}

    std::optional<SettingFault> m_fault;
};

/// Why an administrator's consent was not obtained.
class AuthError final : public DescribedError
{
    Q_DECLARE_TR_FUNCTIONS(ardeo::AuthError)

public:
    static AuthError createFailed() { return AuthError(tr("Cannot create authorization reference.")); }
    static AuthError denied() { return AuthError(tr("Admin authorization was denied or cancelled.")); }

private:
    explicit AuthError(const QString& description) : DescribedError(description) {}
};

} // namespace ardeo
