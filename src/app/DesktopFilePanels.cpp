#include "app/DesktopFilePanels.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace ardeo
{

namespace
{

std::optional<QString> asPlace(const QString& path)
{
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

} // namespace

std::optional<QString> DesktopFilePanels::askWhereToSave(const QString& proposedName, const QString& message)
{
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return asPlace(QFileDialog::getSaveFileName(QApplication::activeWindow(), message,
                                                documents.filePath(proposedName)));
}

std::optional<QString> DesktopFilePanels::askWhatToOpen(const QString& message)
{
    return asPlace(QFileDialog::getOpenFileName(QApplication::activeWindow(), message));
}

} // namespace ardeo
