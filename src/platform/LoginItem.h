#pragma once

#include <QString>

#include <optional>

namespace ardeo
{

/// Whether the program starts when the user logs in.
class LoginItem
{
public:
    enum class Status { notRegistered = 0, enabled = 1, requiresApproval = 2, notFound = 3 };

    virtual ~LoginItem() = default;
    virtual Status status() const = 0;
    /// None on success, else why it failed, as a sentence for the user.
    virtual std::optional<QString> registerItem() = 0;
    /// None on success, else why it failed, as a sentence for the user.
    virtual std::optional<QString> unregisterItem() = 0;
};

} // namespace ardeo
