#pragma once

#include "ui/elements/Style.h"

#include <QPushButton>

namespace ardeo
{

class Spinner;

/// A button: bordered, filled with its tint (prominent), or a bare symbol (plain).
class PushButton final : public QPushButton
{
    Q_OBJECT

public:
    enum class Kind { bordered, prominent, plain };
    enum class Size { regular, large };
    using Tint = QColor Colours::*;

    /// The symbol stands before the text; either may be empty.
    PushButton(const QString& text, const QString& symbol, Kind kind, QWidget* parent = nullptr);

    /// Takes the button into use or out of use. Unlike with setEnabled, the focus stays where it is: a key
    /// that is pressed once more must not set off whatever comes next.
    void setUsable(bool usable);
    void setTint(Tint tint);
    void setControlSize(Size size);
    /// Keeps room for that text, so that nothing moves when it takes the place of the present one.
    void setWidestText(const QString& text);
    void setSymbol(const QString& symbol);
    /// Shows or hides a turning spinner in the symbol's place.
    void setSpinning(bool spinning);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    /// Whether keys that are pressed now come here, or will once the button is in use again.
    bool holdsFocus() const;
    QRectF symbolRect() const;
    void placeSpinner();

    QString m_symbol;
    QString m_widestText;
    Kind m_kind;
    Tint m_tint = nullptr;
    Size m_size = Size::regular;
    /// Made when it is needed first.
    Spinner* m_spinner = nullptr;
    bool m_isSpinning = false;
    bool m_keepsFocus = false;
};

} // namespace ardeo
