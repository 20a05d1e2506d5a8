#pragma once

#include <QObject>
#include <QVariantMap>

#include <optional>

namespace ardeo
{

/// One file panel of the desktop's portal. Main thread; nothing blocks.
class FileChooserPortal final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Asks for a file to open or for a place to save, over the window (as the portal names windows; may be
    /// empty). Ends in one of the two signals.
    void askWhatToOpen(const QString& window, const QString& title);
    void askWhereToSave(const QString& window, const QString& title, const QString& folder,
                        const QString& name);

Q_SIGNALS:
    /// The panel was closed; none when the user cancelled.
    void chosen(const std::optional<QString>& path);
    /// There is no portal that shows file panels.
    void unavailable();

private Q_SLOTS:
    void takeResponse(uint response, const QVariantMap& results);

private:
    void ask(const QString& method, const QString& window, const QString& title, QVariantMap options);
};

} // namespace ardeo
