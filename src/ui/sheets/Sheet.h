#pragma once

#include <QDialog>

namespace ardeo
{

/// What is asked before a window goes on. It belongs to that window, so it has a frame of its own and no
/// title bar, with which some desktops would let it be minimised.
class Sheet : public QDialog
{
    Q_OBJECT

protected:
    /// The title names it for assistive technology.
    Sheet(const QString& title, QWidget* parent);
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ardeo
