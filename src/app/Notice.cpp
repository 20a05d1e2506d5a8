#include "app/Notice.h"

#include <QMessageBox>

namespace ardeo
{

void showNotice(const QString& sentence)
{
    auto* notice = new QMessageBox(QMessageBox::Information, QStringLiteral("Ardeo IP Config"), sentence,
                                   QMessageBox::Ok);
    notice->setAttribute(Qt::WA_DeleteOnClose);
    notice->setModal(false);
    notice->show();
}

} // namespace ardeo
