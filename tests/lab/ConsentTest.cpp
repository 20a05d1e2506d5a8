#include "model/MainViewModel.h"
#include "platform/linux/program/LinuxPlatform.h"

#include <QFile>
#include <QTest>

using namespace ardeo;
using namespace Qt::StringLiterals;

/// One model and the real polkit, as an ordinary user with an agent that gives its consent and counts how
/// often.
class ConsentTest : public QObject
{
    Q_OBJECT

    /// Everything in the file, or given into the pipe, whose path the variable holds.
    static QByteArray contentOf(const char* variable)
    {
        QFile file(qEnvironmentVariable(variable));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static qsizetype prompts() { return contentOf("LAB_PROMPTS").count('\n'); }
    /// Returns when the agent speaks for this process.
    static void awaitAgent() { contentOf("LAB_REGISTERED"); }
    /// Has polkit forget every consent, as it does after some minutes.
    static void lapse()
    {
        contentOf("LAB_LAPSE");
        awaitAgent();
    }

private Q_SLOTS:
    void consentIsAskedForOnceAndAgainWhenItHasLapsed()
    {
        awaitAgent();
        Platform platform = linuxPlatform(u"/bin/true"_s);
        const auto model = MainViewModel::create(platform);
        QCoro::waitFor(model->loadAdapters());
        const auto apply = [&] {
            QCoro::waitFor(model->applyConfiguration());
            return model->applyError.value().value_or(Text()).string();
        };
        QCOMPARE(apply(), QString());
        QCOMPARE(apply(), QString());
        QCOMPARE(prompts(), 1);
        lapse();
        QCOMPARE(apply(), u"Cannot acquire preferences lock (SC 1003)."_s);
        QCOMPARE(prompts(), 1);
        QCOMPARE(apply(), QString());
        QCOMPARE(prompts(), 2);
        model->ipv4Mode = IPv4Mode::manual;
        model->ipAddress = Text(u"1.2"_s);
        const auto revoked = [] { return contentOf("LAB_REVOKED").count("tmpauthz"); };
        const auto before = revoked();
        QCOMPARE(apply(), u"Cannot save changes (SC 1002)."_s);
        QTRY_COMPARE(revoked(), before + 1);
        model->revertForm();
        QCOMPARE(apply(), QString());
        QCOMPARE(prompts(), 2);

        lapse(); // from now on polkit keeps none, and NetworkManager asks for one of its own
        QCOMPARE(apply(), QString());
        QCOMPARE(prompts(), 3);
        const auto choose = [](const char* variable, const char* prompt) {
            QFile file(qEnvironmentVariable(variable));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(prompt) > 0);
        };
        choose("LAB_REFUSED", "4\n");
        QCOMPARE(apply(), u"Cannot save changes (SC 1003)."_s);
        QCOMPARE(prompts(), 4);
        choose("LAB_SLOW", "6\n"); // NetworkManager's own, after ours
        QCOMPARE(apply(), QString());
        QCOMPARE(prompts(), 6);
        const std::weak_ptr<MainViewModel> alive = model;
        QTRY_VERIFY_WITH_TIMEOUT(alive.use_count() == 1, 10'000); // the follow-up refreshes
    }
};

QTEST_GUILESS_MAIN(ConsentTest)
#include "ConsentTest.moc"
