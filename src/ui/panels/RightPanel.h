#pragma once

#include "model/MainViewModel.h"
#include "ui/background/NeuralNetworkBackground.h"

#include <QScrollArea>

namespace ardeo
{

/// The form with the settings to apply, the live state of the selected service, and the buttons that act on
/// it.
class RightPanel final : public QWidget
{
    Q_OBJECT

public:
    RightPanel(MainViewModel& model, Clock& clock, QWidget* parent = nullptr);
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QWidget* makeContent();
    void followDisableConfirm();
    QRegion covered() const;

    MainViewModel& vm;
    Observed<bool> showDisableConfirm{false};
    NeuralNetworkBackground* m_background;
    QScrollArea* m_cards = nullptr;
    /// What hides the background, for its sake.
    QList<const QWidget*> m_covering;
};

} // namespace ardeo
