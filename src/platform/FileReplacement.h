#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ardeo
{

/// Replaces a file by one with that content, readable for its owner alone: wholly, and on disk when it
/// returns, or not at all, with the reason. A link in the file's place is replaced, not followed: in a folder
/// that others can write to it may lead to a file of the user's that somebody wants overwritten.
std::optional<QString> replaceFile(const QString& path, const QByteArray& content);

} // namespace ardeo
