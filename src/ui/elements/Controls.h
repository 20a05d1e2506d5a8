#pragma once

#include "ui/elements/Style.h"

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

namespace ardeo
{

/// One choice of several that exclude each other.
class RadioButton final : public QRadioButton
{
    Q_OBJECT

public:
    explicit RadioButton(const QString& text, QWidget* parent = nullptr);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override;
};

/// A choice that shows what is chosen and pops the rest up. A tool tip tells all of what does not fit.
class PopUpButton final : public QComboBox
{
    Q_OBJECT

public:
    explicit PopUpButton(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void showPopup() override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QString shownText() const;
    QRect labelRect() const;
};

/// Has the line slant its placeholder, so that it does not look like something typed.
void slantPlaceholder(QLineEdit& line);

/// A line of text to be edited, in a rounded border.
class TextField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit TextField(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A symbol and a short text on a faint ground of their colour.
class Badge final : public QWidget
{
    Q_OBJECT

public:
    explicit Badge(const QString& symbol, QWidget* parent = nullptr);
    void setText(const QString& text);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    QString m_symbol;
};

/// A symbol on its own, in one of the scheme's colours.
class SymbolView final : public QWidget
{
    Q_OBJECT

public:
    SymbolView(const QString& symbol, int size, std::function<QColor(const Colours&)> colour,
               QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_symbol;
    std::function<QColor(const Colours&)> m_colour;
};

/// The program's own icon.
class ApplicationIcon final : public QWidget
{
    Q_OBJECT

public:
    explicit ApplicationIcon(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ardeo
