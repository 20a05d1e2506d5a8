#include "app/DesktopFilePanels.h"

#include "platform/linux/desktop/FileChooserPortal.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace ardeo
{

namespace
{

/// Shows nothing itself: it keeps the program's windows from being used while the portal's panel is open,
/// and waits for the answer.
class PortalPanel final : public QDialog
{
public:
    PortalPanel()
    {
        setAttribute(Qt::WA_DontShowOnScreen);
        connect(&portal, &FileChooserPortal::chosen, this, [this](const std::optional<QString>& path) {
            m_chosen = path;
            accept();
        });
        connect(&portal, &FileChooserPortal::unavailable, this, [this] { reject(); });
    }

    FileChooserPortal portal;

    /// False where no portal showed a panel; else what was chosen is in chosen.
    bool run() { return exec() == Accepted; }
    const std::optional<QString>& chosen() const { return m_chosen; }

private:
    std::optional<QString> m_chosen;
};

/// The window that a panel belongs to, as portals name it; only X11's can be named without more ado.
QString activeWindow()
{
    const QWidget* window = QApplication::activeWindow();
    const bool isX11 = QGuiApplication::platformName() == QStringLiteral("xcb");
    return isX11 && window ? QStringLiteral("x11:%1").arg(window->winId(), 0, 16) : QString();
}

/// What the toolkit's panel shows of a folder: the files that export makes, or all, whose names say nothing.
QString filters()
{
    return QCoreApplication::translate("ardeo::DesktopFilePanels",
                                       "Ardeo IP Config profiles (*.profiles);;All files (*)");
}

QString documents()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

std::optional<QString> asPlace(const QString& path)
{
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

} // namespace

std::optional<QString> DesktopFilePanels::askWhereToSave(const QString& proposedName, const QString& message)
{
    const QString folder = documents();
    PortalPanel panel;
    panel.portal.askWhereToSave(activeWindow(), message, folder, proposedName);
    if (panel.run())
        return panel.chosen();
    return asPlace(QFileDialog::getSaveFileName(QApplication::activeWindow(), message,
                                                QDir(folder).filePath(proposedName), filters()));
}

std::optional<QString> DesktopFilePanels::askWhatToOpen(const QString& message)
{
    PortalPanel panel;
    panel.portal.askWhatToOpen(activeWindow(), message);
    if (panel.run())
        return panel.chosen();
    return asPlace(
        QFileDialog::getOpenFileName(QApplication::activeWindow(), message, documents(), filters()));
}

} // namespace ardeo
