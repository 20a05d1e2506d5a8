#include "ui/SectionHeader.h"

#include "ui/TextLabel.h"

#include <QVBoxLayout>

namespace ardeo
{

SectionHeader::SectionHeader(const QString& title, QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 12, 8, 4);
    layout->addWidget(
        new TextLabel(title, look::font(TextStyle::title3, QFont::DemiBold), Emphasis::primary));
}

} // namespace ardeo
