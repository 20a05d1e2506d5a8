#include "fakes/Fakes.h"
#include "platform/FileUserDefaults.h"
#include "store/NetworkPresetStore.h"

#include <QTemporaryDir>

#include <csignal>
#include <cstdio>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ardeo;

namespace
{

const QString key = QLatin1String(applicationIdentifier) + QStringLiteral(".presets");

/// What the one that is killed tells the one that kills it: the list before and the list after its change.
struct Announcement {
    std::atomic<unsigned> count;
    std::array<std::array<char, 64 * 1024>, 2> lists;

    void announce(const QByteArray& list)
    {
        qstrncpy(lists[(count + 1) % 2].data(), list.constData(), lists[0].size());
        ++count;
    }
    bool covers(const QByteArray& list) const { return list == lists[0].data() || list == lists[1].data(); }
};

/// Saves, renames, deletes and imports until it is killed. A store in memory makes each change first.
[[noreturn]] void changeForever(const QDir& folder, Announcement& announcement, std::minstd_rand random)
{
    FakeUserDefaults memory;
    FileUserDefaults file(folder);
    memory.values[key] = file.data(key).value_or("[]");
    announcement.announce(memory.values[key]);
    NetworkPresetStore rehearsal(memory);
    NetworkPresetStore store(file);
    while (true) {
        const auto presets = store.presets();
        NetworkPreset chosen = presets.value(qsizetype(random() % unsigned(presets.size() + 1)));
        chosen.name = QString::number(random());
        const QList<NetworkPreset> imported{chosen, {.name = chosen.name}, {}};
        const auto kind = presets.size() > 50 ? 3 : random() % 3;
        for (NetworkPresetStore* one : {&rehearsal, &store}) {
            if (one == &store)
                announcement.announce(memory.values[key]);
            if (kind == 0)
                one->upsert(chosen);
            else if (kind == 1)
                one->upsertAll(imported);
            else if (kind == 2)
                one->remove(chosen.id);
            else
                one->setPresets(presets.first(10));
        }
    }
}

} // namespace

/// kill-test [COUNT]: kills a program that changes its profiles that many times, at random moments; what it
/// leaves is the list before or after the change it was at.
int main(int, char** arguments)
{
    const int kills = arguments[1] ? std::atoi(arguments[1]) : 60;
    const QTemporaryDir folder;
    auto& shared = *static_cast<Announcement*>(
        mmap(nullptr, sizeof(Announcement), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    std::minstd_rand random(std::random_device{}());
    unsigned changes = 0;
    for (int kill = 0; kill < kills; ++kill) {
        shared.count = 0;
        const pid_t child = fork();
        if (child == 0)
            changeForever(QDir(folder.path()), shared, std::minstd_rand(random()));
        while (shared.count == 0 && waitpid(child, nullptr, WNOHANG) == 0)
            usleep(100);
        usleep(useconds_t(random() % 50'000));
        ::kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        const auto list = FileUserDefaults(QDir(folder.path())).data(key).value_or("[]");
        if (!WIFSIGNALED(status) || !decodePresets(list) || !shared.covers(list)) {
            std::printf("kill %d, change %u: %s\n", kill, unsigned(shared.count), list.constData());
            return 1;
        }
        changes += shared.count - 1;
    }
    const auto left = QDir(folder.path()).entryList(QDir::Files).size() - 1;
    std::printf("%d kills in %u changes, %d unfinished files left\n", kills, changes, int(left));
    return 0;
}
