#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

namespace ardeo
{

/// The user's own preferences: a byte string for each key. Used from the main thread.
class UserDefaults
{
public:
    virtual ~UserDefaults() = default;
    /// None where nothing was stored or it cannot be read.
    virtual std::optional<QByteArray> data(const QString& key) const = 0;
    /// Whether something is stored that cannot be read.
    virtual bool isUnreadable(const QString& key) const = 0;
    /// On disk when it returns. Where that cannot be had, what was stored before stays whole.
    virtual void set(const QByteArray& data, const QString& key) = 0;

    /// Called from within set, with a sentence for the user, the first time in a run that it could not store.
    std::function<void(const QString& sentence)> couldNotStore = [](const QString&) {};
};

} // namespace ardeo
