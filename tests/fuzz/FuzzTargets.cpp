#include "backend/Errors.h"
#include "backend/NetworkConfigService.h"
#include "backend/NetworkPreset.h"
#include "fakes/FakeSystemConfiguration.h"
#include "fakes/Fakes.h"
#include "platform/ProtocolConfiguration.h"
#include "platform/simulated/SimulatedConfiguration.h"
#include "ui/elements/IPAddressField.h"

#include <QApplication>
#include <QDirIterator>
#include <QRandomGenerator>
#include <QTemporaryDir>

using namespace ardeo;

namespace
{

/// What a target promises of every input; libFuzzer keeps the input that breaks it.
void promise(bool kept)
{
    if (!kept)
        qFatal("A promise is broken.");
}

/// Texts that mean something, and the keys of the dictionaries.
const QStringList words =
    u" . 7 DHCP Manual 10.0.0.2 10.2.3.4 255.255.0.0 ConfigMethod Addresses SubnetMasks "
    "Router ServerAddresses ServerAddress SearchDomains Active Speed Duplex"_s.split(u' ');

/// Makes values of the bytes of an input; past its end there are zeros.
class Invention
{
public:
    explicit Invention(const QByteArray& input) : m_input(input) {}
    bool atEnd() const { return m_at >= m_input.size(); }
    /// A number below the limit, which is at most 256.
    int number(int limit) { return atEnd() ? 0 : static_cast<uchar>(m_input.at(m_at++)) % limit; }
    QString word() { return words.at(number(static_cast<int>(words.size()))); }
    QString text()
    {
        if (number(2) == 0)
            return word();
        QString text;
        for (int left = number(6); left > 0; --left) // any unit at all, halves of pairs too
            text += QChar(static_cast<char16_t>(number(2) * number(256) * 256 + number(256)));
        return text;
    }
    std::optional<QString> maybeText() { return number(8) > 0 ? std::optional(text()) : std::nullopt; }
    /// A value that a system could hand out, of the right kind or of a wrong one.
    QVariant value(int depth = 3)
    {
        const std::array<QVariant, 6> simple{QVariant(), number(2) == 1, qint64(number(256)) << 40,
                                             2.5,        "x"_ba,         text()};
        const int kind = number(depth > 0 ? 9 : 6);
        if (kind <= 6)
            return kind == 6 ? dictionary(depth - 1) : simple.at(static_cast<size_t>(kind));
        QVariantList list;
        for (int left = number(4); left > 0; --left)
            list.append(kind == 7 ? text() : value(depth - 1));
        return kind == 7 ? QVariant(QVariant(list).toStringList()) : list;
    }
    Dictionary dictionary(int depth = 3)
    {
        Dictionary dictionary;
        for (int left = number(8); left > 0; --left)
            dictionary.insert(word(), value(depth));
        return dictionary;
    }

private:
    QByteArray m_input;
    qsizetype m_at = 0;
};

/// Profiles in any bytes: what can be read is as it was written, can be written, and reads the same again.
void profiles(const QByteArray& input)
{
    const auto presets = decodePresets(input);
    if (!presets)
        return;
    const auto read = nlohmann::json::parse(input.begin(), input.end());
    for (size_t i = 0; i < read.size(); ++i)
        promise(read[i]["name"] == presets->at(qsizetype(i)).name.string().toStdString());
    const auto written = encodePresets(*presets);
    promise(written && decodePresets(*written) == presets);
    promise(encodePresets(*decodePresets(*written)) == written);
}

/// Any bytes as the simulated machine's file: what the backend changes of it stays a machine.
void machine(const QByteArray& input)
{
    static const QTemporaryDir folder;
    static QFile file(folder.filePath(u"machine.json"_s));
    static const FakeClock clock;
    static SimulatedConfiguration system(SimulatedMachine(file.fileName()), clock);
    static NetworkConfigService service(system);
    promise(file.open(QIODevice::WriteOnly) && file.write(input) == input.size());
    file.close();
    const QList<AdapterInfo> adapters = service.listAdapters().result();
    const Text name = adapters.isEmpty() ? Text() : adapters.constLast().serviceName;
    NetworkAdapterInfo settings = service.currentConfig(name).result();
    try {
        service.setServiceEnabled(input.size() % 2 == 0, name, AuthorizationRef{1}).waitForFinished();
        for (const IPv4Mode mode : ModeTexts<IPv4Mode>::allCases) {
            settings.ipv4Mode = mode;
            service.writeConfiguration(name, settings, AuthorizationRef{1}).waitForFinished();
            promise(service.currentConfig(name).result().ipv4Mode == mode);
        }
    } catch (const ConfigError&) {
        promise(!adapters.isEmpty() || file.size() == input.size());
    }
    promise(service.listAdapters().result().size() == adapters.size());
}

/// Whatever a system hands out under whatever key: the backend takes what is right and leaves the rest.
void dictionaries(const QByteArray& input)
{
    static FakeSystemConfiguration system;
    static NetworkConfigService service(system);
    Invention invention(input);
    system.calls.clear();
    system.state.clear();
    system.services.clear();
    system.computerName = invention.maybeText();
    for (int left = invention.number(4); left > 0; --left) {
        FakeSystemConfiguration::Service made{.name = invention.maybeText(), .id = invention.text()};
        made.interface = {invention.text(), invention.maybeText(), invention.maybeText()};
        for (auto& protocol : made.protocols)
            protocol = invention.value();
        const QString state = u"State:/Network/Service/%1/"_s.arg(*made.id);
        const QString interface = u"State:/Network/Interface/%1/"_s.arg(*made.interface->bsdName);
        system.state[state + u"IPv4"_s] = invention.value();
        system.state[interface + u"Link"_s] = invention.value();
        system.state[interface + u"DHCP"_s] = invention.value();
        if (invention.number(4) == 0)
            made.id = made.interface->bsdName = std::nullopt;
        system.services.append(made);
    }
    const QList<AdapterInfo> adapters = service.listAdapters().result();
    promise(std::ranges::is_sorted(adapters, std::greater(), &AdapterInfo::isActive));
    for (const AdapterInfo& adapter : adapters) {
        const NetworkAdapterInfo settings = service.currentConfig(adapter.serviceName).result();
        promise(settings.dnsMode == DNSMode::manual || settings.alternateDNS.isEmpty());
        service.writeConfiguration(adapter.serviceName, settings, {}).waitForFinished();
    }
    const auto ipv4 = checkedIPv4(invention.dictionary());
    promise(!ipv4 || ipv4->manual != ipv4->addresses.isEmpty());
    const auto dns = checkedDNS(invention.dictionary());
    promise(!dns || !dns->serverAddresses.contains(QString()));
}

/// Digits, pastes and assignments in any order: each octet stays one, and the bound text follows.
void octets(const QByteArray& input)
{
    [[maybe_unused]] static const auto& application = *new QApplication(*new int(), nullptr);
    // One field for all inputs: making one takes far longer than most of them.
    static auto& value = *new Observed<Text>(Text(u"..."_s));
    static auto& field = *new IPAddressField(value, u"192.168.1.1"_s, u"IP Address:"_s);
    value = Text(u"..."_s);
    QCoreApplication::sendPostedEvents();
    for (int i = 0; i < 4; ++i)
        field.octet(i)->setText({}); // there is nothing to undo any more
    Invention invention(input.left(128));
    QLineEdit* octet = field.octet(0);
    const std::array<std::function<void()>, 7> operations{
        [&] { octet = field.octet(invention.number(4)); },
        [&] { value = invention.text(); },
        [&] { octet->insert(invention.text()); },
        [&] { octet->setCursorPosition(invention.number(4)); },
        [&] { octet->undo(); },
        [&] { octet->backspace(); },
        [&] { octet->insert(QString::number(invention.number(10))); }};
    while (!invention.atEnd()) {
        operations.at(static_cast<size_t>(invention.number(7)))();
        QCoreApplication::sendPostedEvents();
        for (int i = 0; i < 4; ++i) {
            const QString part = field.octet(i)->text();
            promise(part.toUcs4().size() <= 3 && part.toInt() <= 255);
            promise(value.value().string().split(u'.').value(i) == part);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    static const std::map<QByteArray, void (*)(const QByteArray&)> targets{
        {"profiles", profiles}, {"machine", machine}, {"dictionaries", dictionaries}, {"octets", octets}};
    targets.at(qgetenv("FUZZ_TARGET"))(input);
    return 0;
}

#ifdef REPLAY
/// Gives the target every file of a folder, and what is drawn, where there is no libFuzzer to invent some.
int main(int, char** arguments)
{
    const auto give = [](const QByteArray& input) {
        LLVMFuzzerTestOneInput(reinterpret_cast<const uchar*>(input.constData()),
                               static_cast<size_t>(input.size()));
    };
    QDirIterator files(QString::fromLocal8Bit(arguments[1]), QDir::Files);
    promise(files.hasNext());
    while (files.hasNext()) {
        QFile file(files.next());
        promise(file.open(QIODevice::ReadOnly));
        qInfo("%s", qUtf8Printable(file.fileName()));
        give(file.readAll());
    }
    QRandomGenerator random(1);
    for (int length = 1; length <= 300; ++length) {
        QByteArray input(length, Qt::Uninitialized);
        std::ranges::generate(input, [&] { return static_cast<char>(random.bounded(256)); });
        give(input);
    }
}
#endif
