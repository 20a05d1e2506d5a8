#include "ui/sheets/Sheet.h"

#include "ui/elements/Style.h"

#include <QPainter>

namespace ardeo
{

Sheet::Sheet(const QString& title, QWidget* parent) : QDialog(parent, Qt::Sheet | Qt::FramelessWindowHint)
{
    setWindowModality(Qt::WindowModal);
    setWindowTitle(title);
}

void Sheet::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(look::colours(this).tertiary);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace ardeo
