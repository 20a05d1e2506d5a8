#pragma once

#include "ui/background/MaterialPanel.h"

#include <QDialog>
#include <QPointer>
#include <QVBoxLayout>

namespace ardeo
{

/// What is asked before a window goes on: a panel in the middle of the window, over a backdrop that covers
/// all the rest. As long as it is open the window gets neither clicks nor keys, but those that end the
/// program; then the focus returns to where it was. A window has one at a time: a second one cancels the
/// first.
class Sheet : public QDialog
{
    Q_OBJECT

protected:
    /// The title names it for assistive technology; the panel's width is in points at the usual text size.
    Sheet(const QString& title, int width, QWidget* window);

    /// Where its parts go, one below the other, that many points apart and 24 from the edge.
    QVBoxLayout* makeColumn(int spacing);

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    MaterialPanel* m_panel;
    QPointer<QWidget> m_focusBefore;
};

} // namespace ardeo
