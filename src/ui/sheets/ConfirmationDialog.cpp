#include "ui/sheets/ConfirmationDialog.h"

#include "ui/elements/PushButton.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

namespace ardeo
{

namespace
{

constexpr int dialogWidth = 320;

} // namespace

ConfirmationDialog::ConfirmationDialog(const QString& title, const QString& message,
                                       const QString& destructive, QWidget* parent)
    : Sheet(title, dialogWidth, parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    auto* stack = makeColumn(8);
    const auto add = [stack](const QString& text, TextStyle style, Emphasis emphasis) {
        auto* label = new TextLabel(text, look::font(style), emphasis);
        label->setAlignment(Qt::AlignCenter);
        label->setWrapped();
        stack->addWidget(label);
    };
    add(title, TextStyle::headline, Emphasis::primary);
    if (!message.isEmpty())
        add(message, TextStyle::body, Emphasis::secondary);
    stack->addSpacing(4);

    auto* go = new PushButton(destructive, QString(), PushButton::Kind::bordered);
    go->setTint(&Colours::red);
    auto* cancel = new PushButton(tr("Cancel"), QString(), PushButton::Kind::bordered);
    cancel->setDefault(true);
    for (PushButton* button : {go, cancel}) {
        button->setControlSize(PushButton::Size::large);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        stack->addWidget(button);
    }
    go->setToolTip(toolTipText(destructive));
    go->setAccessibleName(destructive);
    connect(go, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    cancel->setFocus();
}

} // namespace ardeo
