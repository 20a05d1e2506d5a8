#pragma once

#include <QWidget>

namespace ardeo
{

/// A label of fixed width, followed by an editor.
class FormRow final : public QWidget
{
    Q_OBJECT

public:
    FormRow(const QString& label, QWidget* content, QWidget* parent = nullptr);
};

/// The width of every label column, in points at the usual text size.
inline constexpr int labelColumnWidth = 120;

} // namespace ardeo
