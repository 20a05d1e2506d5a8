#pragma once

#include <QObject>

namespace ardeo
{

/// Tells whoever listens that something is asked for, by name. Observers are called before post returns, on
/// the main thread.
class NotificationCenter final : public QObject
{
    Q_OBJECT

public:
    void post(const QString& name) { Q_EMIT posted(name); }

Q_SIGNALS:
    void posted(const QString& name);
};

} // namespace ardeo
