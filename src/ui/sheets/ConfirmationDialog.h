#pragma once

#include "ui/sheets/Sheet.h"

namespace ardeo
{

/// Asks before something is done that cannot be undone. Accepted means: do it. It deletes itself when it
/// closes.
class ConfirmationDialog final : public Sheet
{
    Q_OBJECT

public:
    /// The message may be empty; destructive is the text of the button that does it.
    ConfirmationDialog(const QString& title, const QString& message, const QString& destructive,
                       QWidget* parent);
};

} // namespace ardeo
