#pragma once

#include <QWidget>

namespace ardeo
{

class TextLabel;

/// A label of fixed width, followed by a value that can be selected and copied.
class InfoRow final : public QWidget
{
    Q_OBJECT

public:
    InfoRow(const QString& label, const QString& value, bool monospaced, QWidget* parent = nullptr);
    /// An empty value is shown as a dash.
    void setValue(const QString& value);

private:
    TextLabel* m_value;
};

} // namespace ardeo
