#include "backend/AdapterInfo.h"
#include "backend/Errors.h"
#include "backend/NetworkPreset.h"

#include <QTest>

using namespace ardeo;

namespace
{

constexpr auto complete =
    R"({"id":"0f0e0d0c-0b0a-4908-8706-050403020100","name":"Office","serviceName":"Wi-Fi",)"
    R"("ipv4Mode":"Manual","ipAddress":"10.0.0.2","subnetMask":"255.0.0.0","router":"",)"
    R"("dnsMode":"Automatic","primaryDNS":"","alternateDNS":"","searchDomains":"a/b"})";

QByteArray replaced(const char* before, const char* after)
{
    return '[' + QByteArray(complete).replace(before, after) + ']';
}

} // namespace

class RecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsCompareCanonically()
    {
        const Text composed(QStringLiteral("Café"));
        const Text decomposed(QStringLiteral("Cafe\u0301"));
        QCOMPARE(composed, decomposed);
        QCOMPARE(qHash(composed), qHash(decomposed));
        QVERIFY(Text(QStringLiteral("café")) != composed);
        QCOMPARE(decomposed.string().size(), 5);
        const AdapterInfo one{.serviceName = composed};
        const AdapterInfo other{.serviceName = decomposed};
        QCOMPARE(one, other);
        QCOMPARE(qHash(one), qHash(other));
    }

    void textsAreOrderedByScalarValues()
    {
        const QStringList ordered{QStringLiteral("Ethernet"),   QStringLiteral("Wi-Fi"),
                                  QStringLiteral("iPhone USB"), QStringLiteral("e\u0301"),
                                  QStringLiteral("\uFF21"),     QStringLiteral("\U0001F310")};
        for (qsizetype i = 0; i + 1 < ordered.size(); ++i) {
            QVERIFY2(comesBefore(ordered[i], ordered[i + 1]), qPrintable(ordered[i]));
            QVERIFY(!comesBefore(ordered[i + 1], ordered[i]));
        }
    }

    void adaptersTellNoneFromZero()
    {
        const AdapterInfo unknown{.serviceName = QStringLiteral("Wi-Fi")};
        AdapterInfo zero = unknown;
        zero.linkSpeedMbps = 0;
        QVERIFY(unknown != zero);
        QVERIFY(qHash(unknown) != qHash(zero));
        QCOMPARE(unknown.id(), zero.id());
    }

    void presetsSurviveTheRoundTrip()
    {
        const QList<NetworkPreset> presets{
            {.name = QStringLiteral("Büro \"1\" \\ \U0001F310\n"), .ipv4Mode = IPv4Mode::manual},
            {.name = QStringLiteral("Office"),
             .dnsMode = DNSMode::manual,
             .searchDomains = QStringLiteral("a/b  c")}};
        const auto encoded = encodePresets(presets);
        QVERIFY(encoded);
        QCOMPARE(decodePresets(*encoded), presets);
        QVERIFY(encoded->contains(R"("searchDomains":"a\/b  c")"));
        QVERIFY(!encoded->contains('\n'));
        QCOMPARE(*encodePresets({}), QByteArray("[]"));
        QVERIFY(!encodePresets({{.name = QString(QChar(0xD800))}}));

        const auto decoded = decodePresets('[' + QByteArray(complete) + ']');
        QVERIFY(decoded);
        QVERIFY(encodePresets(*decoded)->startsWith(
            R"([{"id":"0F0E0D0C-0B0A-4908-8706-050403020100","name":"Office",)"));
    }

    void presetDecodingIsStrict_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("accepted");
        const auto row = [](const char* name, const QByteArray& json, bool accepted) {
            QTest::newRow(name) << json << accepted;
        };
        row("complete", replaced("x?", ""), true);
        row("unknown member", replaced("{", R"({"comment":[1,{}],)"), true);
        row("slash escaped", replaced("a/b", R"(a\/b)"), true);
        row("surrogate pair", replaced("Office", R"(\ud83c\udf10)"), true);
        row("lone surrogate", replaced("Office", R"(\ud83c)"), false);
        row("invalid UTF-8", replaced("Office", "\xC3("), false);
        row("missing member", replaced(R"("router":"",)", ""), false);
        row("null", replaced(R"("router":"")", R"("router":null)"), false);
        row("number", replaced(R"("router":"")", R"("router":1)"), false);
        row("mode in lower case", replaced("Manual", "manual"), false);
        row("DNS mode of the other kind", replaced("Automatic", "DHCP"), false);
        row("id in braces",
            replaced("0f0e0d0c-0b0a-4908-8706-050403020100", "{0f0e0d0c-0b0a-4908-8706-050403020100}"),
            false);
        row("id too short", replaced("0f0e0d0c-", ""), false);
        row("second element bad", '[' + QByteArray(complete) + ",{}]", false);
        row("object", complete, false);
        row("empty", "", false);
        row("trailing text", replaced("x?", "") + "x", false);
    }
    void presetDecodingIsStrict()
    {
        QFETCH(QByteArray, json);
        QTEST(decodePresets(json).has_value(), "accepted");
    }

    void errorsReadAsWritten()
    {
        const auto message = [](const DescribedError& error) { return error.errorDescription(); };
        QCOMPARE(message(ConfigError::lockFailed(-1)),
                 QStringLiteral("Cannot acquire preferences lock (SC -1)."));
        QCOMPARE(message(ConfigError::serviceNotFound(QString())), QStringLiteral("Service '' not found."));
        QCOMPARE(message(ConfigError::serviceNotFound(QStringLiteral("%1'%2"))),
                 QStringLiteral("Service '%1'%2' not found."));
        QCOMPARE(message(ConfigError::protocolUnavailable(QStringLiteral("IPv4"))),
                 QStringLiteral("Protocol IPv4 unavailable."));
        QCOMPARE(message(ConfigError::commitFailed(1003)), QStringLiteral("Cannot save changes (SC 1003)."));
        QCOMPARE(message(ConfigError::applyFailed(1001)), QStringLiteral("Cannot apply changes (SC 1001)."));
    }
};

QTEST_APPLESS_MAIN(RecordsTest)
#include "RecordsTest.moc"
