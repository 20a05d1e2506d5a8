#include "app/Notice.h"

#include "ui/sheets/NoticePanel.h"

namespace ardeo
{

void showNotice(const QString& sentence)
{
    (new NoticePanel(QStringLiteral("Ardeo IP Config"), sentence))->show();
}

} // namespace ardeo
