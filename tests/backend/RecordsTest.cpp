#include "backend/AdapterInfo.h"
#include "backend/Errors.h"
#include "backend/NetworkPreset.h"

#include <QTest>

using namespace ardeo;
using namespace Qt::StringLiterals;

namespace
{

constexpr auto complete =
    R"({"id":"0f0e0d0c-0b0a-4908-8706-050403020100","name":"Office","serviceName":"Wi-Fi",)"
    R"("ipv4Mode":"Manual","ipAddress":"10.0.0.2","subnetMask":"255.0.0.0","router":"",)"
    R"("dnsMode":"Automatic","primaryDNS":"1.1.1.1","alternateDNS":"9.9.9.9","searchDomains":"a/b"})";

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
        const Text composed(u"Café"_s);
        const Text decomposed(u"Cafe\u0301"_s);
        QCOMPARE(composed, decomposed);
        QCOMPARE(qHash(composed), qHash(decomposed));
        QVERIFY(Text(u"café"_s) != composed);
        const AdapterInfo one{.serviceName = composed};
        AdapterInfo other{.serviceName = decomposed};
        QCOMPARE(one, other);
        QCOMPARE(qHash(one), qHash(other));
        other.linkSpeedMbps = 0; // is not the same as unknown
        QVERIFY(one != other);
    }

    void presetsSurviveTheRoundTrip()
    {
        const QList<NetworkPreset> presets{{.name = u"Büro \"1\" \\ \U0001F310\n"_s}, {.name = u"a  c"_s}};
        QCOMPARE(decodePresets(encodePresets(presets).value_or("")), presets);
        QCOMPARE(encodePresets({}), QByteArray("[]"));
        QVERIFY(!encodePresets({{.name = QString(QChar(0xD800))}}));

        const auto decoded = decodePresets('[' + QByteArray(complete) + ']');
        const QUuid id(u"0f0e0d0c-0b0a-4908-8706-050403020100"_s);
        const NetworkPreset office{
            id,    u"Office"_s,        u"Wi-Fi"_s,   IPv4Mode::manual, u"10.0.0.2"_s, u"255.0.0.0"_s,
            u""_s, DNSMode::automatic, u"1.1.1.1"_s, u"9.9.9.9"_s,     u"a/b"_s};
        QCOMPARE(decoded, QList{office});
        const auto written = QByteArray(complete).replace("0f0e0d0c-0b0a", "0F0E0D0C-0B0A");
        QCOMPARE(*encodePresets(*decoded), '[' + QByteArray(written).replace('/', R"(\/)") + ']');
    }

    void presetDecodingIsStrict()
    {
        const QByteArray good = replaced("x?", "");
        const char* const id = "0f0e0d0c-0b0a-4908-8706-050403020100";
        for (const QByteArray& json : {good, replaced("{", R"({"comment":[1,{}],)"),
                                       replaced("a/b", R"(a\/b)"), replaced("Office", R"(\ud83c\udf10)")})
            QVERIFY2(decodePresets(json), json.constData());
        for (const QByteArray& json :
             {replaced("Office", R"(\ud83c)"), replaced("Office", "\xC3("), replaced(R"("router":"",)", ""),
              replaced(R"("router":"")", R"("router":null)"), replaced(R"("router":"")", R"("router":1)"),
              replaced("Manual", "manual"), replaced("Automatic", "DHCP"),
              replaced(id, "{0f0e0d0c-0b0a-4908-8706-050403020100}"), replaced("0f0e0d0c-", ""),
              '[' + QByteArray(complete) + ",{}]", QByteArray(complete), QByteArray(), good + 'x'})
            QVERIFY2(!decodePresets(json), json.constData());
    }

    void errorsQuoteNamesAsTheyAre()
    {
        QCOMPARE(ConfigError::serviceNotFound(u"%1'%2"_s).errorDescription(),
                 u"Service '%1'%2' not found."_s);
    }
};

QTEST_APPLESS_MAIN(RecordsTest)
#include "RecordsTest.moc"
