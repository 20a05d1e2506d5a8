#pragma once

#include <QDeadlineTimer>

#include <functional>
#include <gio/gio.h>
#include <memory>

namespace ardeo
{

struct GObjectUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};
/// Sole owner of one reference to a GObject.
template <typename T>
using GRef = std::unique_ptr<T, GObjectUnref>;

/// Takes a reference of its own to an object that somebody else owns too.
template <typename T>
GRef<T> newRef(T* object)
{
    return GRef<T>(object ? static_cast<T*>(g_object_ref(object)) : nullptr);
}

struct GVariantUnref {
    void operator()(GVariant* variant) const { g_variant_unref(variant); }
};
using GVariantRef = std::unique_ptr<GVariant, GVariantUnref>;

/// Where a GLib function leaves its error.
class GLibError
{
public:
    GLibError() = default;
    GLibError(const GLibError&) = delete;
    GLibError& operator=(const GLibError&) = delete;
    ~GLibError() { g_clear_error(&m_error); }

    GError** out() { return &m_error; }
    GError* get() const { return m_error; }
    explicit operator bool() const { return m_error != nullptr; }

private:
    GError* m_error = nullptr;
};

/// Makes asynchronous GLib calls end within a deadline, by running them on a main context of its own: the
/// calls block the calling thread, and never meet a context that somebody else runs.
class GLibLoop
{
public:
    GLibLoop();
    GLibLoop(const GLibLoop&) = delete;
    GLibLoop& operator=(const GLibLoop&) = delete;
    ~GLibLoop();

    /// Starts an asynchronous call with what it has to be given, and returns its result once it has ended. At
    /// the deadline the call is cancelled; its result then says so.
    using Begin = std::function<void(GCancellable*, GAsyncReadyCallback, gpointer)>;
    GRef<GAsyncResult> call(QDeadlineTimer deadline, const Begin& begin);

    /// Starts what will end on this loop, and returns at once.
    void start(const std::function<void()>& begin);

    /// Has the condition of runUntil looked at again. May be called from any thread.
    void wake() { g_main_context_wakeup(m_context); }

    /// Handles what arrives until the condition holds; false when the deadline comes first.
    bool runUntil(QDeadlineTimer deadline, const std::function<bool()>& condition);

    /// The system bus; null when it cannot be reached in time.
    GRef<GDBusConnection> systemBus(QDeadlineTimer deadline);

private:
    GMainContext* m_context;
};

} // namespace ardeo
