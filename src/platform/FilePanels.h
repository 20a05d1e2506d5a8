#pragma once

#include <QString>

#include <optional>

namespace ardeo
{

/// Asks the user for files. Main thread; returns when the user has closed the panel.
class FilePanels
{
public:
    virtual ~FilePanels() = default;
    /// Where to save, with a proposed file name; none when the user cancels.
    virtual std::optional<QString> askWhereToSave(const QString& proposedName, const QString& message) = 0;
    /// Which file to open, of any kind; none when the user cancels.
    virtual std::optional<QString> askWhatToOpen(const QString& message) = 0;
};

} // namespace ardeo
