#pragma once

#include <QWidget>

namespace ardeo
{

/// Whether a widget is on screen, as far as the system tells: shown, in a window that is neither minimised
/// nor wholly hidden by others.
class Visibility final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the widget.
    explicit Visibility(QWidget* widget);
    bool isSeen() const;

Q_SIGNALS:
    /// May have changed.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* m_widget;
};

} // namespace ardeo
