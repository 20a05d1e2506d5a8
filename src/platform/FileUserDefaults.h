#pragma once

#include "platform/UserDefaults.h"

#include <QCoreApplication>
#include <QDir>

namespace ardeo
{

/// User defaults as one file per key in a folder of their own, readable for their owner alone.
class FileUserDefaults final : public UserDefaults
{
    Q_DECLARE_TR_FUNCTIONS(ardeo::FileUserDefaults)

public:
    explicit FileUserDefaults(const QDir& folder);
    std::optional<QByteArray> data(const QString& key) const override;
    bool isUnreadable(const QString& key) const override;
    void set(const QByteArray& data, const QString& key) override;

private:
    /// The reason why the data could not be stored; none when it was.
    std::optional<QString> store(const QByteArray& data, const QString& key) const;

    QDir m_folder;
    bool m_failureTold = false;
};

} // namespace ardeo
