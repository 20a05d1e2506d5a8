#pragma once

#include <QWidget>

namespace ardeo
{

class ValueLabel;

/// A label of fixed width, followed by a value that can be reached, selected and copied, by keyboard too.
class InfoRow final : public QWidget
{
    Q_OBJECT

public:
    InfoRow(const QString& label, const QString& value, bool monospaced, QWidget* parent = nullptr);
    /// An empty value is shown as a dash.
    void setValue(const QString& value);

private:
    ValueLabel* m_value;
};

} // namespace ardeo
