#pragma once

#include <QDialog>

namespace ardeo
{

/// Tells the user something, below the program's icon and name, in a window that keeps nobody from going on.
/// It deletes itself when it closes.
class NoticePanel final : public QDialog
{
    Q_OBJECT

public:
    NoticePanel(const QString& title, const QString& text, QWidget* parent = nullptr);
};

} // namespace ardeo
