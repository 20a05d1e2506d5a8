#include "ui/sheets/NoticePanel.h"

#include "ui/elements/Controls.h"
#include "ui/elements/PushButton.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

namespace ardeo
{

namespace
{

constexpr int panelWidth = 360;
constexpr int padding = 24;

} // namespace

NoticePanel::NoticePanel(const QString& title, const QString& text, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    auto* stack = columnIn(this, 12, {padding, padding, padding, padding});
    stack->addWidget(new ApplicationIcon, 0, Qt::AlignHCenter);
    stack->addWidget(
        new TextLabel(QStringLiteral("Ardeo IP Config"), look::font(TextStyle::headline), Emphasis::primary),
        0, Qt::AlignHCenter);
    auto* sentence = new TextLabel(text, look::font(TextStyle::body), Emphasis::secondary);
    sentence->setAlignment(Qt::AlignCenter);
    sentence->setWrapped();
    stack->addWidget(sentence);
    stack->addSpacing(4);
    auto* close = new PushButton(tr("OK"), QString(), PushButton::Kind::prominent);
    close->setTint(&Colours::tealFill);
    close->setControlSize(PushButton::Size::large);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    stack->addWidget(close, 0, Qt::AlignHCenter);
    look::followTextSize(this, [this, stack, close] {
        close->setMinimumWidth(look::scaled(96));
        setFixedSize(look::scaled(panelWidth), stack->totalHeightForWidth(look::scaled(panelWidth)));
    });
    close->setFocus();
}

} // namespace ardeo
