// Linked into the tests where they are built with the thread sanitizer. Qt and GLib are not built with it:
// what they do among themselves is left out, and nothing would tell it that what a thread pool is given is
// there before a thread takes it up, and that what an operation has done, or the exception it has thrown, is
// there when its future has ended. Those functions take the place of Qt's own here, so that everything of
// this program stays in sight without a suppression.

#include <QFuture>
#include <QThreadPool>

#include <dlfcn.h>
#include <memory>
#include <sanitizer/tsan_interface.h>

namespace
{

class HandedOver final : public QRunnable
{
public:
    explicit HandedOver(QRunnable* operation) : m_operation(operation) { __tsan_release(this); }
    void run() override
    {
        __tsan_acquire(this);
        m_operation->run();
    }

private:
    std::unique_ptr<QRunnable> m_operation;
};

} // namespace

extern "C" const char* __tsan_default_options()
{
    return "ignore_noninstrumented_modules=1";
}

void QThreadPool::start(QRunnable* operation, int priority)
{
    using Start = void (*)(QThreadPool*, QRunnable*, int);
    static const auto start =
        reinterpret_cast<Start>(dlsym(RTLD_NEXT, "_ZN11QThreadPool5startEP9QRunnablei"));
    start(this, new HandedOver(operation), priority);
}

#if QT_VERSION < QT_VERSION_CHECK(6, 6, 0) // since then, this is what the other does
void QThreadPool::start(std::function<void()> operation, int priority)
{
    start(QRunnable::create(std::move(operation)), priority);
}
#endif

void QFutureInterfaceBase::reportException(std::exception_ptr exception)
{
    using Report = void (*)(QFutureInterfaceBase*, std::exception_ptr);
    static const auto report = reinterpret_cast<Report>(
        dlsym(RTLD_NEXT, "_ZN20QFutureInterfaceBase15reportExceptionENSt15__exception_ptr13exception_ptrE"));
    __tsan_release(&exceptionStore());
    report(this, std::move(exception));
}

void QFutureInterfaceBase::reportFinished()
{
    using Report = void (*)(QFutureInterfaceBase*);
    static const auto report =
        reinterpret_cast<Report>(dlsym(RTLD_NEXT, "_ZN20QFutureInterfaceBase14reportFinishedEv"));
    __tsan_release(&exceptionStore());
    report(this);
}

void QFutureInterfaceBase::waitForFinished()
{
    using Wait = void (*)(QFutureInterfaceBase*);
    static const auto wait =
        reinterpret_cast<Wait>(dlsym(RTLD_NEXT, "_ZN20QFutureInterfaceBase15waitForFinishedEv"));
    const auto acquire = qScopeGuard([this] { __tsan_acquire(&exceptionStore()); });
    wait(this);
}
