#include "platform/FileUserDefaults.h"

#include "platform/FileReplacement.h"

#include <QFileInfo>

#include <filesystem>

namespace ardeo
{

namespace
{

/// What stands at that path. What cannot be looked at, because of its folder's rights for one, is there as
/// well, with a kind of its own.
std::filesystem::file_type kindOf(const QString& path)
{
    std::error_code failure;
    return std::filesystem::status(QFile::encodeName(path).toStdString(), failure).type();
}

} // namespace

FileUserDefaults::FileUserDefaults(const QDir& folder) : m_folder(folder) {}

std::optional<QByteArray> FileUserDefaults::data(const QString& key) const
{
    QFile file(m_folder.filePath(key));
    // Anything but a file could be read for ever.
    if (kindOf(file.fileName()) != std::filesystem::file_type::regular || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray data = file.readAll();
    return file.error() == QFileDevice::NoError ? std::optional(data) : std::nullopt;
}

bool FileUserDefaults::isUnreadable(const QString& key) const
{
    return kindOf(m_folder.filePath(key)) != std::filesystem::file_type::not_found && !data(key);
}

void FileUserDefaults::set(const QByteArray& data, const QString& key)
{
    const auto failure = store(data, key);
    if (!failure || m_failureTold)
        return;
    m_failureTold = true;
    couldNotStore(tr("Your profiles could not be saved: %1.").arg(*failure));
}

std::optional<QString> FileUserDefaults::store(const QByteArray& data, const QString& key) const
{
    if (!m_folder.exists()) {
        const QFileInfo folder(m_folder.path());
        QDir().mkpath(folder.path());
        QDir().mkdir(folder.filePath(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    // What is there and could not be read, for its rights or the disk's health, is worth more than its
    // successor, which was made without knowing it.
    if (isUnreadable(key))
        return tr("those stored before cannot be read");
    return replaceFile(m_folder.filePath(key), data);
}

} // namespace ardeo
