#include "platform/FileUserDefaults.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace ardeo
{

FileUserDefaults::FileUserDefaults(const QDir& folder) : m_folder(folder) {}

std::optional<QByteArray> FileUserDefaults::data(const QString& key) const
{
    QFile file(m_folder.filePath(key));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray data = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(data) : std::nullopt;
}

void FileUserDefaults::set(const QByteArray& data, const QString& key)
{
    if (!m_folder.exists()) {
        const QFileInfo folder(m_folder.path());
        QDir().mkpath(folder.path());
        QDir().mkdir(folder.filePath(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QSaveFile file(m_folder.filePath(key));
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner))
        return;
    if (file.write(data) == data.size())
        file.commit();
}

} // namespace ardeo
