#include "platform/FileReplacement.h"

#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace ardeo
{

std::optional<QString> replaceFile(const QString& path, const QByteArray& content)
{
    QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
    if (!file.open() || file.write(content) != content.size() || !file.flush())
        return file.errorString();
    // Some file systems have nothing to synchronise and say so.
    const bool synchronised = fsync(file.handle()) == 0 || errno == EINVAL;
    if (!synchronised ||
        std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) != 0)
        return qt_error_string(errno);
    file.setAutoRemove(false);
    return std::nullopt;
}

} // namespace ardeo
