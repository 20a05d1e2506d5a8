#include "ui/sheets/ProfileNameSheet.h"

#include "ui/elements/Binding.h"
#include "ui/elements/Controls.h"
#include "ui/elements/PushButton.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

#include <QShortcut>

#include <algorithm>

namespace ardeo
{

namespace
{

constexpr int sheetWidth = 320;

bool isBlank(const QString& name)
{
    return std::ranges::all_of(name,
                               [](QChar c) { return c.category() == QChar::Separator_Space || c == u'\t'; });
}

} // namespace

ProfileNameSheet::ProfileNameSheet(Observed<Text>& name, const QString& title, const QString& confirm,
                                   std::function<void()> onConfirm, std::function<void()> onCancel,
                                   QWidget* parent)
    : Sheet(title, sheetWidth, parent)
    , m_onCancel(std::move(onCancel))
{
    auto* stack = makeColumn(20);
    stack->addWidget(new TextLabel(title, look::font(TextStyle::headline), Emphasis::primary), 0,
                     Qt::AlignHCenter);

    auto* field = new TextField;
    field->setPlaceholderText(tr("Profile name"));
    field->setAccessibleName(tr("Profile name"));
    stack->addWidget(field, 0, Qt::AlignHCenter);
    connect(field, &QLineEdit::textEdited, this, [&name](const QString& text) { name = Text(text); });
    bind(
        this, [&name] { return name.value(); },
        [field](const Text& text) {
            if (Text(field->text()) != text)
                field->setText(text);
        });
    field->selectAll();

    auto* buttons = rowIn(stack, 12);
    auto* cancel = new PushButton(tr("Cancel"), QString(), PushButton::Kind::bordered);
    auto* save = new PushButton(confirm, QString(), PushButton::Kind::prominent);
    save->setTint(&Colours::tealFill);
    save->setDefault(true);
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(save);
    buttons->addStretch();
    connect(cancel, &QPushButton::clicked, this, [this] { m_onCancel(); });
    connect(save, &QPushButton::clicked, this, std::move(onConfirm));
    const auto isNamed = [&name] { return !isBlank(name.value()); };
    bind(this, isNamed, [save](bool named) { save->setEnabled(named); });

    look::followTextSize(field, [field] { field->setFixedWidth(look::scaled(260)); });
    field->setFocus();
}

void ProfileNameSheet::reject()
{
    m_onCancel();
}

} // namespace ardeo
