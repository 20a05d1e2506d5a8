#include "ui/elements/SectionHeader.h"

#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

namespace ardeo
{

SectionHeader::SectionHeader(const QString& title, QWidget* parent) : QWidget(parent)
{
    columnIn(this, 0, {8, 12, 8, 4})
        ->addWidget(new TextLabel(title, look::font(TextStyle::title3, QFont::DemiBold), Emphasis::primary));
}

} // namespace ardeo
