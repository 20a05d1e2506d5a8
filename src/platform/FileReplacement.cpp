#include "platform/FileReplacement.h"

#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace ardeo
{

namespace
{

/// Writes all of it through to the disk; false with the reason in errno.
bool writeThrough(int file, QByteArrayView content)
{
    while (!content.isEmpty()) {
        // A disk that fills up takes a part first; only the attempt to write the rest tells why.
        const auto written = write(file, content.data(), static_cast<size_t>(content.size()));
        if (written < 0 && errno != EINTR)
            return false;
        content = content.sliced(written < 0 ? 0 : written);
    }
    // Some file systems have nothing to synchronise and say so.
    return fsync(file) == 0 || errno == EINVAL;
}

} // namespace

std::optional<QString> replaceFile(const QString& path, const QByteArray& content)
{
    QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
    if (!file.open())
        return file.errorString();
    if (!writeThrough(file.handle(), content) ||
        std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) != 0)
        return qt_error_string(errno);
    file.setAutoRemove(false);
    return std::nullopt;
}

} // namespace ardeo
