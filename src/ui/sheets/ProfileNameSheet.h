#pragma once

#include "backend/Text.h"
#include "model/Observed.h"
#include "ui/sheets/Sheet.h"

#include <functional>

namespace ardeo
{

/// What the two sheets that ask for a profile's name have in common. A sheet edits the text it is bound to
/// and reports the choice; it does not close itself.
class ProfileNameSheet : public Sheet
{
    Q_OBJECT

protected:
    ProfileNameSheet(Observed<Text>& name, const QString& title, const QString& confirm,
                     std::function<void()> onConfirm, std::function<void()> onCancel, QWidget* parent);

public:
    /// Escape and the window's own way to close it count as cancelling.
    void reject() override;

private:
    std::function<void()> m_onCancel;
};

} // namespace ardeo
