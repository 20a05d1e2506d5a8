#pragma once

#include <QVariantAnimation>
#include <QWidget>

#include <functional>

namespace ardeo
{

/// A place whose content is there only while it is shown: made anew each time it unfolds (with a fade and a
/// slide from the top), gone as soon as it starts to fold.
class UnfoldingSection final : public QWidget
{
    Q_OBJECT

public:
    using MakeContent = std::function<QWidget*()>;

    /// The content stands below the gap, indented, both in points.
    UnfoldingSection(int gap, int indent, MakeContent makeContent, QWidget* parent = nullptr);

    void setShown(bool shown);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// It has folded over the focus, which is nowhere now.
    void focusLost();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void putInTabOrder();
    void setProgress(double progress);
    void placeContent();

    int m_gap;
    int m_indent;
    MakeContent m_makeContent;
    QWidget* m_content = nullptr;
    /// What the content looked like: drawn while it moves.
    QPixmap m_picture;
    QSize m_pictureSize;
    double m_progress = 0;
    QVariantAnimation m_animation;
};

} // namespace ardeo
