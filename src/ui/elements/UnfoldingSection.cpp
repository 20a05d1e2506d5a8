#include "ui/elements/UnfoldingSection.h"

#include "ui/elements/Style.h"

#include <QEvent>
#include <QPainter>

#include <utility>

namespace ardeo
{

namespace
{

constexpr int unfoldMilliseconds = 200;

} // namespace

UnfoldingSection::UnfoldingSection(int gap, int indent, MakeContent makeContent, QWidget* parent)
    : QWidget(parent)
    , m_gap(gap)
    , m_indent(indent)
    , m_makeContent(std::move(makeContent))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_animation.setEasingCurve(QEasingCurve::InOutSine);
    connect(&m_animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { setProgress(value.toDouble()); });
    connect(&m_animation, &QVariantAnimation::finished, this, [this] {
        m_picture = {};
        setProgress(m_progress);
    });
}

void UnfoldingSection::setShown(bool shown)
{
    if (shown == (m_content != nullptr))
        return;
    if (shown) {
        m_content = m_makeContent();
        m_content->setParent(this);
        putInTabOrder();
        m_content->adjustSize();
        placeContent();
    }
    const bool moves = isVisible() && look::duration(this, unfoldMilliseconds) > 0;
    if (moves) {
        m_pictureSize = QSize(width() - m_indent, m_content->sizeHint().height());
        m_content->ensurePolished();
        m_picture = m_content->grab(QRect(QPoint(), m_pictureSize));
    }
    if (shown) {
        m_content->show();
    } else {
        const bool hadFocus = m_content->isAncestorOf(window()->focusWidget());
        delete std::exchange(m_content, nullptr);
        if (hadFocus)
            Q_EMIT focusLost();
    }
    m_animation.stop();
    if (!moves) {
        m_picture = {};
        setProgress(shown ? 1 : 0);
        return;
    }
    m_animation.setStartValue(m_progress);
    m_animation.setEndValue(shown ? 1.0 : 0.0);
    m_animation.setDuration(unfoldMilliseconds);
    m_animation.start();
}

void UnfoldingSection::putInTabOrder()
{
    // What comes into a window joins the end of its order, wherever it stands. Only what can have the focus
    // can be moved in the order.
    QWidget* before = previousInFocusChain();
    while (before != this && before->focusPolicy() == Qt::NoFocus)
        before = before->previousInFocusChain();
    QWidget* next = m_content->nextInFocusChain();
    while (m_content->isAncestorOf(next)) {
        QWidget* control = std::exchange(next, next->nextInFocusChain());
        if (control->focusPolicy() != Qt::NoFocus) {
            setTabOrder(before, control);
            before = control;
        }
    }
}

void UnfoldingSection::setProgress(double progress)
{
    m_progress = progress;
    updateGeometry();
    placeContent();
    update();
}

QSize UnfoldingSection::sizeHint() const
{
    const QSize inner = m_content ? m_content->sizeHint() : m_pictureSize;
    return {inner.width() + m_indent, qRound(m_progress * (inner.height() + m_gap))};
}

QSize UnfoldingSection::minimumSizeHint() const
{
    return {m_content ? m_content->minimumSizeHint().width() + m_indent : 0, sizeHint().height()};
}

bool UnfoldingSection::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) { // the content has grown
        updateGeometry();
        placeContent();
    }
    return QWidget::event(event);
}

void UnfoldingSection::resizeEvent(QResizeEvent*)
{
    placeContent();
}

void UnfoldingSection::placeContent()
{
    if (!m_content)
        return;
    const int height = m_content->sizeHint().height();
    // While its picture moves, the content waits below what is visible: it can be typed into all the same.
    const int top = m_picture.isNull() ? m_gap : m_gap + height * 2;
    m_content->setGeometry(isRightToLeft() ? 0 : m_indent, top, width() - m_indent, height);
}

void UnfoldingSection::paintEvent(QPaintEvent*)
{
    if (m_picture.isNull())
        return;
    QPainter painter(this);
    painter.setOpacity(m_progress);
    const double slide = (1 - m_progress) * (m_pictureSize.height() + m_gap);
    painter.drawPixmap(QPointF(isRightToLeft() ? 0 : m_indent, m_gap - slide), m_picture);
}

} // namespace ardeo
