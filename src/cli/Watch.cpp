#include "cli/Watch.h"

#include "cli/JsonOutput.h"
#include "cli/Output.h"

#include <QCoroFuture>
#include <QCoroTask>
#include <QDateTime>
#include <QEventLoop>
#include <QTimeZone>

#include <map>
#include <utility>

namespace ardeo
{

namespace
{

/// A service as it was read.
struct Seen {
    AdapterInfo adapter;
    NetworkAdapterInfo configuration;
};

/// What is told of a service when it changes.
QList<std::pair<QString, QString>> tellingFields(const Seen& seen)
{
    const QString trial = seen.adapter.confirmBy ? Console::tr(", on trial") : QString();
    QList<std::pair<QString, QString>> fields{{Console::tr("State"), stateText(seen.adapter) + trial}};
    fields.append(fieldsOf(seen.configuration));
    return fields;
}

class Watch
{
public:
    Watch(NetworkConfigService& service, Platform& platform, bool asJson,
          const std::function<bool(const QByteArray&)>& print)
        : m_service(service)
        , m_platform(platform)
        , m_asJson(asJson)
        , m_print(print)
    {
    }

    void run()
    {
        const auto noted = QObject::connect(
            &m_service, &NetworkConfigService::changed, &m_loop, [this] { look(); }, Qt::QueuedConnection);
        m_service.followChanges(true);
        look();
        if (!m_isOver)
            m_loop.exec();
        QObject::disconnect(noted);
    }

private:
    /// Reads everything, and again what has changed while it was being read.
    QCoro::Task<> look()
    {
        m_hasChanged = true;
        if (std::exchange(m_isLooking, true))
            co_return;
        while (std::exchange(m_hasChanged, false) && !m_isOver) {
            std::map<QString, Seen> found;
            const QList<AdapterInfo> adapters = co_await m_service.listAdapters();
            for (const AdapterInfo& adapter : adapters) {
                const NetworkAdapterInfo configuration =
                    co_await m_service.currentConfig(adapter.serviceName);
                found.emplace(adapter.serviceName.string(), Seen{adapter, configuration});
            }
            const auto trouble = m_platform.trouble();
            tellTrouble(trouble ? trouble->sentence : QString());
            if (!trouble)
                tellDifferences(std::exchange(m_seen, std::move(found)));
        }
        m_isLooking = false;
    }

    void tellTrouble(const QString& sentence)
    {
        if (sentence == std::exchange(m_trouble, sentence))
            return;
        if (m_asJson)
            tell(troubleAsJson(time(), sentence));
        else
            tell(line(sentence.isEmpty() ? Console::tr("The network service answers again.") : sentence));
    }

    void tellDifferences(const std::map<QString, Seen>& before)
    {
        if (!std::exchange(m_knowsAll, true))
            return;
        for (const auto& [name, seen] : m_seen) {
            const auto known = before.find(name);
            if (known == before.end())
                tellService("added", seen, Console::tr("added, %1").arg(stateText(seen.adapter)));
            else if (const QStringList changes = changesBetween(known->second, seen); !changes.isEmpty())
                tellService("changed", seen, changes.join(QStringLiteral("; ")));
        }
        for (const auto& [name, seen] : before) {
            if (!m_seen.contains(name))
                tellService("removed", seen, Console::tr("removed"));
        }
    }

    static QStringList changesBetween(const Seen& before, const Seen& now)
    {
        QStringList changes;
        const auto old = tellingFields(before);
        const auto fields = tellingFields(now);
        for (qsizetype i = 0; i < fields.size(); ++i) {
            if (fields[i] != old[i])
                changes << QStringLiteral("%1 %2 → %3").arg(fields[i].first, old[i].second, fields[i].second);
        }
        return changes;
    }

    void tellService(const char* event, const Seen& seen, const QString& text)
    {
        const bool isGone = qstrcmp(event, "removed") == 0;
        const QString name = seen.adapter.serviceName;
        if (m_asJson)
            tell(eventAsJson(time(), event, seen.adapter,
                             isGone ? std::nullopt : std::optional(seen.configuration)));
        else
            tell(line(name + QStringLiteral(": ") + text));
    }

    /// In JSON the date as such, for people the time of day where they are.
    QString time() const
    {
        const QDateTime epoch = QDateTime::fromString(QStringLiteral("2001-01-01T00:00:00Z"), Qt::ISODate);
        const QDateTime now = epoch.addMSecs(qint64(m_platform.clock->referenceTime() * 1000));
        return m_asJson ? now.toString(Qt::ISODate) : now.toLocalTime().toString(QStringLiteral("HH:mm:ss"));
    }

    QByteArray line(const QString& text) const
    {
        return (time() + QStringLiteral("  ") + printable(text) + u'\n').toUtf8();
    }

    void tell(const QByteArray& output)
    {
        if (m_isOver || m_print(output))
            return;
        m_isOver = true;
        m_loop.quit();
    }

    NetworkConfigService& m_service;
    Platform& m_platform;
    bool m_asJson;
    const std::function<bool(const QByteArray&)>& m_print;
    QEventLoop m_loop;
    std::map<QString, Seen> m_seen;
    QString m_trouble;
    bool m_knowsAll = false;
    bool m_hasChanged = false;
    bool m_isLooking = false;
    bool m_isOver = false;
};

} // namespace

void watch(NetworkConfigService& service, Platform& platform, bool asJson,
           const std::function<bool(const QByteArray&)>& print)
{
    Watch(service, platform, asJson, print).run();
}

} // namespace ardeo
