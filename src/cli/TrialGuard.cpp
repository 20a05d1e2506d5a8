#include "cli/TrialGuard.h"

#include "cli/Output.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace ardeo
{

namespace
{

// What the two processes tell each other, a letter each; the text of an error follows its letter.
constexpr char made = 'm';
constexpr char keep = 'k';
constexpr char takeBack = 'u';
constexpr char over = 'o';
constexpr char failed = 'f';

/// Everything that can be read at once; empty when the other side is gone.
std::string readFrom(int pipe)
{
    std::array<char, 4096> buffer{};
    const ssize_t size = read(pipe, buffer.data(), buffer.size());
    return size > 0 ? std::string(buffer.data(), static_cast<size_t>(size)) : std::string();
}

void writeTo(int pipe, const std::string& text)
{
    // Nobody may be there to read it.
    [[maybe_unused]] const ssize_t written = write(pipe, text.data(), text.size());
}

void say(const QString& text)
{
    std::fputs(text.toUtf8().constData(), stderr);
}

/// Says how the trial ended, and returns the exit status that goes with it.
int end(const std::string& report)
{
    if (report.starts_with(keep))
        return EXIT_SUCCESS;
    if (report.starts_with(failed))
        std::fprintf(stderr, "\n%s\n", report.substr(1).c_str());
    else if (report.starts_with(takeBack))
        say(u'\n' + Console::tr("The change has been taken back.") + u'\n');
    else
        say(u'\n' + Console::tr("The change is no longer on trial.") + u'\n');
    return EXIT_FAILURE;
}

/// The first process, once the change has been made: counts down, and asks. Returns its exit status.
int ask(int orders, int reports, std::chrono::seconds time)
{
    const auto deadline = std::chrono::steady_clock::now() + time;
    bool isAnswered = false;
    for (;;) {
        const auto left =
            std::chrono::ceil<std::chrono::seconds>(deadline - std::chrono::steady_clock::now());
        if (!isAnswered)
            say(u'\r' +
                Console::tr(
                    "Keep this change? Enter keeps it, u and Enter takes it back; so does waiting %n s. ",
                    nullptr, std::max(0, static_cast<int>(left.count()))));
        std::array<pollfd, 2> sources{pollfd{reports, POLLIN, 0}, pollfd{STDIN_FILENO, POLLIN, 0}};
        poll(sources.data(), isAnswered ? 1 : 2, isAnswered ? -1 : 1000);
        if (sources[0].revents != 0)
            return end(readFrom(reports));
        if (!isAnswered && sources[1].revents != 0) {
            const std::string answer = readFrom(STDIN_FILENO);
            if (answer.empty())
                return 1; // no terminal any more
            isAnswered = true;
            writeTo(orders, std::string(1, answer.starts_with(takeBack) ? takeBack : keep));
        }
    }
}

[[noreturn]] void standBy(pid_t guard, int orders, int reports)
{
    const std::string report = readFrom(reports);
    if (report.empty()) {
        int status = 0;
        waitpid(guard, &status, 0);
        std::_Exit(WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_FAILURE);
    }
    const std::chrono::seconds left(std::atoi(report.c_str() + 1));
    if (isatty(STDIN_FILENO) != 0 && isatty(STDERR_FILENO) != 0)
        std::_Exit(ask(orders, reports, left));
    say(Console::tr("The change is taken back in %n s. \"ardeoctl confirm\" keeps it, \"ardeoctl undo\" "
                    "takes it back at once.",
                    nullptr, static_cast<int>(left.count())) +
        u'\n');
    std::_Exit(EXIT_SUCCESS);
}

} // namespace

TrialGuard::TrialGuard()
{
    std::array<int, 2> orders{};
    std::array<int, 2> reports{};
    if (pipe2(orders.data(), O_CLOEXEC) != 0 || pipe2(reports.data(), O_CLOEXEC) != 0) {
        std::perror("ardeoctl");
        std::_Exit(EXIT_FAILURE);
    }
    const pid_t guard = fork();
    if (guard < 0) {
        std::perror("ardeoctl");
        std::_Exit(EXIT_FAILURE);
    }
    if (guard > 0) {
        close(orders[0]);
        close(reports[1]);
        standBy(guard, orders[1], reports[0]);
    }
    close(orders[1]);
    close(reports[0]);
    m_orders = orders[0];
    m_reports = reports[1];
    setsid(); // what ends with the terminal is not this process
}

void TrialGuard::watch(const std::shared_ptr<MainViewModel>& model) const
{
    writeTo(m_reports, made + std::to_string(model->secondsToConfirm.value().value_or(0)));
    const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(nowhere, stream);

    bool isOver = false;
    const auto end = [&](const std::string& report) {
        writeTo(m_reports, report);
        isOver = true;
    };
    QSocketNotifier orders(m_orders, QSocketNotifier::Read);
    QObject::connect(&orders, &QSocketNotifier::activated, &orders, [&] {
        const std::string order = readFrom(m_orders);
        orders.setEnabled(!order.empty()); // the first process is gone
        if (order.empty())
            return;
        QCoro::waitFor(model->endTrial(order.starts_with(keep)));
        const auto error = model->applyError.value();
        end(error ? failed + printable(*error).toStdString() : order);
    });
    const auto look = [&] {
        const auto adapter = model->selectedAdapter.value();
        if (!isOver && !model->isApplying.value() && !(adapter && adapter->confirmBy))
            end(std::string(1, over));
    };
    const auto endsElsewhere = model->selectedAdapter.addNotifier(look);
    const auto endsHere = model->guardedTrials.addNotifier([&] {
        if (!isOver && model->guardedTrials.value() == 0)
            end(std::string(1, takeBack));
    });
    model->follow(&orders, true);
    while (!isOver)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace ardeo
