#pragma once

#include <QObject>

namespace ardeo
{

/// The place where the desktop shows the icons of programs in the background: a status notifier host on the
/// session bus, or an X11 tray. Main thread; asking the bus blocks nobody.
class StatusArea final : public QObject
{
    Q_OBJECT

public:
    explicit StatusArea(QObject* parent = nullptr);

    /// Whether an icon would be seen, as far as is known; a host on the bus counts from hostKnown on.
    bool isPresent() const;

Q_SIGNALS:
    /// The bus has told whether a host is there; again whenever that changes.
    void hostKnown(bool present);

private Q_SLOTS:
    void askForHost();

private:
    bool m_hasHost = false;
};

} // namespace ardeo
