#include "fakes/Fakes.h"
#include "platform/FileUserDefaults.h"
#include "store/NetworkPresetStore.h"

#include <QTemporaryDir>

#include <csignal>
#include <random>
#include <sched.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ardeo;

/// A save, import, rename or delete, which one and of what following from the number and the list alone.
static void change(NetworkPresetStore& store, unsigned number)
{
    const auto& presets = store.presets();
    const auto made = [&](unsigned id) {
        return NetworkPreset{.id = QUuid(id, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0), .name = QString::number(number)};
    };
    NetworkPreset chosen = presets.isEmpty() ? made(0) : presets.at(number % presets.size());
    chosen.name = QString::number(number);
    if (number % 4 == 0)
        store.upsert(made(number % 32));
    else if (number % 4 == 1)
        store.upsertAll({made(number % 16), chosen, made(100)});
    else if (number % 4 == 2)
        store.upsert(chosen);
    else
        store.remove(chosen.id);
}

/// kill-test [COUNT]: kills a program that changes its profiles that many times, at random moments; what it
/// leaves is the list before or after the change it was at. ARDEO_SEED repeats what was drawn.
int main(int, char** arguments)
{
    const int kills = arguments[1] ? std::atoi(arguments[1]) : 60;
    const QString key = QLatin1String(applicationIdentifier) + u".presets"_s;
    const QTemporaryDir folder;
    FileUserDefaults disk(QDir(folder.path()));
    // cppcheck-suppress variableScope ; one mapping serves all that are killed
    auto& begun = *static_cast<std::atomic<unsigned>*>(
        mmap(nullptr, sizeof(unsigned), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    const uint seed = qEnvironmentVariable("ARDEO_SEED", QString::number(std::random_device{}())).toUInt();
    qInfo("ARDEO_SEED=%u", seed);
    std::minstd_rand random(seed);
    unsigned changes = 0;
    for (int kill = 0; kill < kills; ++kill) {
        begun = 0;
        FakeUserDefaults memory;
        memory.values[key] = disk.data(key).value_or("[]");
        const pid_t child = fork();
        if (child == 0) {
            for (NetworkPresetStore store(disk);;)
                change(store, begun++);
        }
        // So many changes in, it is killed somewhere in the next ones.
        int status = 0;
        for (const auto whole = random() % 60; begun <= whole && waitpid(child, &status, WNOHANG) == 0;)
            sched_yield();
        for (auto turns = random() % 400; turns > 0; --turns)
            sched_yield();
        ::kill(child, SIGKILL);
        waitpid(child, &status, 0);
        NetworkPresetStore rehearsal(memory);
        QByteArray before = memory.values[key];
        for (unsigned number = 0; number < begun; ++number) {
            before = memory.values[key];
            change(rehearsal, number);
        }
        const QByteArray found = disk.data(key).value_or("[]");
        if (WTERMSIG(status) != SIGKILL || !decodePresets(found) ||
            (found != before && found != memory.values[key]))
            qFatal("kill %d, change %u: %s", kill, unsigned(begun), found.constData());
        changes += begun;
    }
    qInfo("%d kills in %u changes", kills, changes);
    return 0;
}
