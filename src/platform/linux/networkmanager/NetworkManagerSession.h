#pragma once

#include "platform/SystemConfiguration.h"
#include "platform/linux/networkmanager/ChangeSignals.h"
#include "platform/linux/networkmanager/GLibLoop.h"
#include "platform/linux/networkmanager/LibNM.h"
#include "platform/linux/networkmanager/SystemBus.h"

#include <atomic>

namespace ardeo
{

/// How NetworkManager was found the last time.
enum class DaemonPresence { answers, absent, silent };

/// What is kept of NetworkManager from one operation to the next. Used by one operation at a time.
struct DaemonView {
    DaemonView() = default;
    DaemonView(const DaemonView&) = delete;
    DaemonView& operator=(const DaemonView&) = delete;
    ~DaemonView() { dropClient(); }
    void dropClient();

    /// Where all is told; may be woken from any thread.
    GLibLoop loop;
    SystemBus bus;
    /// What the daemon has told, as of the last catching up; null when there is none.
    GRef<NMClient> client;
    /// What the daemon said when it refused the last call; empty when it did not refuse it.
    QString refusal;
    /// Null as long as nobody waits for changes.
    std::unique_ptr<ChangeSignals> signals;
    /// Until then the client's view is what the daemon has just told by itself, so that nobody has to ask.
    QDeadlineTimer toldUntil;
    /// May be read from any thread.
    std::atomic<DaemonPresence> presence = DaemonPresence::answers;
};

/// One operation's view of NetworkManager: a consistent snapshot of what it knows, and the one deadline for
/// all calls that the operation makes.
class NetworkManagerSession
{
public:
    /// The time of one operation.
    static constexpr int operationMilliseconds = 10'000;

    explicit NetworkManagerSession(DaemonView& view);
    NetworkManagerSession(const NetworkManagerSession&) = delete;
    NetworkManagerSession& operator=(const NetworkManagerSession&) = delete;

    /// The daemon's objects; null when it is not there or does not answer in time. Asks once.
    NMClient* client();
    /// Takes a new snapshot, because time has passed; null as above.
    NMClient* reconnect();

    /// Calls a method of the daemon itself, or of a profile of its; null with the error when that fails.
    GVariantRef ask(const char* method, GVariant* arguments, const char* replyType, GLibError& error);
    GVariantRef ask(NMRemoteConnection* profile, const char* method, GVariant* arguments,
                    const char* replyType, GLibError& error);
    /// Reads a profile from the daemon, not from the snapshot; null with the error when that fails.
    GRef<NMConnection> read(NMRemoteConnection* profile, GLibError& error);
    /// Leaves a reason of our own for the refusal that follows.
    void refuse(const QString& reason) { m_view.refusal = reason; }
    /// Whether the daemon still answers, and has told all that happened before.
    bool catchUp();

    GLibLoop& loop() { return m_view.loop; }
    QDeadlineTimer deadline() const { return m_deadline; }
    /// For what only the daemon is waited for, also where the operation may wait for a person.
    QDeadlineTimer daemonDeadline() const
    {
        return m_deadline.isForever() ? QDeadlineTimer(operationMilliseconds) : m_deadline;
    }
    /// Lets the operation take that much longer, in milliseconds: it had to wait for somebody else.
    void extendDeadline(qint64 milliseconds) { m_deadline += milliseconds; }
    /// From now on the operation may wait for a person, and so for ever.
    void removeDeadline() { m_deadline = QDeadlineTimer(QDeadlineTimer::Forever); }

private:
    NMClient* connect();
    GVariantRef call(const char* path, const char* interface, const char* method, GVariant* arguments,
                     const char* replyType, GLibError& error);

    DaemonView& m_view;
    QDeadlineTimer m_deadline;
    bool m_asked = false;
};

} // namespace ardeo
