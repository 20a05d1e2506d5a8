#pragma once

#include "platform/LoginItem.h"

#include <QDir>

namespace ardeo
{

/// The login item as an XDG autostart entry.
class XdgLoginItem final : public LoginItem
{
public:
    /// The folder is the user's autostart folder; the program is what the entry starts, by its absolute path.
    XdgLoginItem(const QDir& autostartFolder, QString program);
    /// Not found means that an entry is there under our name that starts something else or nothing.
    Status status() const override;
    std::optional<QString> registerItem() override;
    std::optional<QString> unregisterItem() override;

private:
    QString execLine() const;

    QDir m_folder;
    QString m_program;
    QString m_entry;
};

} // namespace ardeo
