#pragma once

#include <QDBusVariant>
#include <QHash>
#include <QObject>
#include <QVariantMap>

#include <optional>

namespace ardeo
{

/// What the desktop says about its looks, by way of its portal. Nothing blocks: until the portal has
/// answered, and where there is none, nothing is known. Main thread.
class DesktopAppearance final : public QObject
{
    Q_OBJECT

public:
    explicit DesktopAppearance(QObject* parent = nullptr);

    /// None where the desktop has no preference.
    std::optional<bool> isDark() const;
    bool wantsReducedMotion() const;
    /// How large the user wants text, as a multiple of what the desktop comes with.
    double textScale() const;

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void takeSetting(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void readAll();
    QVariant setting(const char* group, const char* key) const;

    /// The settings that were told, by group and key.
    QHash<QString, QVariantMap> m_settings;
};

} // namespace ardeo
