#include "platform/linux/networkmanager/GLibLoop.h"

#include <algorithm>

namespace ardeo
{

GLibLoop::GLibLoop() : m_context(g_main_context_new()) {}

GLibLoop::~GLibLoop()
{
    g_main_context_unref(m_context);
}

GRef<GAsyncResult> GLibLoop::call(QDeadlineTimer deadline, const Begin& begin)
{
    const GRef<GCancellable> cancellable(g_cancellable_new());
    GAsyncResult* result = nullptr;
    const GAsyncReadyCallback keepResult = [](GObject*, GAsyncResult* ended, gpointer where) {
        *static_cast<GAsyncResult**>(where) = static_cast<GAsyncResult*>(g_object_ref(ended));
    };
    start([&] { begin(cancellable.get(), keepResult, &result); });
    const auto ended = [&] { return result != nullptr; };
    if (!runUntil(deadline, ended)) {
        g_cancellable_cancel(cancellable.get());
        // A cancelled call ends by itself, but not before its context has run once more.
        runUntil(QDeadlineTimer(QDeadlineTimer::Forever), ended);
    }
    return GRef<GAsyncResult>(result);
}

void GLibLoop::start(const std::function<void()>& begin)
{
    g_main_context_push_thread_default(m_context);
    begin();
    g_main_context_pop_thread_default(m_context);
}

bool GLibLoop::runUntil(QDeadlineTimer deadline, const std::function<bool()>& condition)
{
    g_main_context_push_thread_default(m_context);
    GSource* timeout = nullptr;
    if (!deadline.isForever()) {
        timeout = g_timeout_source_new(static_cast<guint>(std::max<qint64>(0, deadline.remainingTime())));
        g_source_set_callback(
            timeout, [](gpointer) -> gboolean { return G_SOURCE_CONTINUE; }, nullptr, nullptr);
        g_source_attach(timeout, m_context);
    }
    bool holds = condition();
    while (!holds && !deadline.hasExpired()) {
        g_main_context_iteration(m_context, TRUE);
        holds = condition();
    }
    if (timeout) {
        g_source_destroy(timeout);
        g_source_unref(timeout);
    }
    g_main_context_pop_thread_default(m_context);
    return holds;
}

GRef<GDBusConnection> GLibLoop::systemBus(QDeadlineTimer deadline)
{
    const auto result =
        call(deadline, [](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            g_bus_get(G_BUS_TYPE_SYSTEM, cancellable, done, data);
        });
    GRef<GDBusConnection> bus(g_bus_get_finish(result.get(), nullptr));
    if (bus) // A bus that goes away must not take the program with it.
        g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    return bus;
}

} // namespace ardeo
