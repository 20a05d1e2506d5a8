#pragma once

#include <QWidget>

namespace ardeo
{

/// A bold heading line.
class SectionHeader final : public QWidget
{
    Q_OBJECT

public:
    explicit SectionHeader(const QString& title, QWidget* parent = nullptr);
};

} // namespace ardeo
