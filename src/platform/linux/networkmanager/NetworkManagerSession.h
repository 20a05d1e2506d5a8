#pragma once

#include "platform/SystemConfiguration.h"
#include "platform/linux/networkmanager/GLibLoop.h"
#include "platform/linux/networkmanager/LibNM.h"
#include "platform/linux/networkmanager/SystemBus.h"

#include <atomic>

namespace ardeo
{

/// How NetworkManager was found the last time.
enum class DaemonPresence { answers, absent, silent };

/// What the daemon tells, and the loop on which it is told.
struct DaemonView {
    DaemonView() = default;
    DaemonView(const DaemonView&) = delete;
    DaemonView& operator=(const DaemonView&) = delete;
    ~DaemonView();

    GLibLoop loop;
    GRef<NMClient> client;
};

/// One operation's view of NetworkManager: a consistent snapshot of what it knows, and the one deadline for
/// all calls that the operation makes.
class NetworkManagerSession
{
public:
    /// The time of one operation.
    static constexpr int operationMilliseconds = 10'000;

    /// What it finds out about the daemon's presence is stored in presence.
    /// A view that an earlier operation has left in kept saves making a new one; the session leaves its own
    /// there.
    NetworkManagerSession(SystemBus& bus, std::unique_ptr<DaemonView>& kept,
                          std::atomic<DaemonPresence>& presence);
    NetworkManagerSession(const NetworkManagerSession&) = delete;
    NetworkManagerSession& operator=(const NetworkManagerSession&) = delete;
    ~NetworkManagerSession();

    /// The daemon's objects; null when it is not there or does not answer in time. Asks once.
    NMClient* client();
    /// Takes a new snapshot, because time has passed; null as above.
    NMClient* reconnect();

    /// Calls a method of the daemon itself; null with the error when that fails.
    GVariantRef ask(const char* method, GVariant* arguments, const char* replyType, GLibError& error);
    /// Whether the daemon still answers, and has told all that happened before.
    bool catchUp();

    GLibLoop& loop() { return m_view->loop; }
    QDeadlineTimer deadline() const { return m_deadline; }
    /// Lets the operation take that much longer, in milliseconds: it had to wait for somebody else.
    void extendDeadline(qint64 milliseconds) { m_deadline += milliseconds; }
    /// From now on the operation may wait for a person, and so for ever.
    void removeDeadline() { m_deadline = QDeadlineTimer(QDeadlineTimer::Forever); }

private:
    NMClient* connect();

    SystemBus& m_bus;
    std::unique_ptr<DaemonView>& m_kept;
    std::atomic<DaemonPresence>& m_presence;
    QDeadlineTimer m_deadline;
    std::unique_ptr<DaemonView> m_view;
    bool m_asked = false;
};

} // namespace ardeo
