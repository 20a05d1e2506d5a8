#pragma once

#include "platform/SystemConfiguration.h"

#include <QIODevice>

/// Every target is this function: libFuzzer calls it with what it invents, Replay.cpp with the corpus. An
/// input it cannot stand ends the program.
extern "C" int LLVMFuzzerTestOneInput(const uchar* data, size_t size);

namespace ardeo
{

/// What a target promises; checked in every build.
inline void promise(bool kept)
{
    if (!kept)
        qFatal("A promise is broken.");
}

/// Makes values of the bytes of an input; past its end there are zeros.
class Invention
{
public:
    Invention(const uchar* data, size_t size) : m_data(data), m_end(data + size) {}

    bool atEnd() const { return m_data == m_end; }
    /// A number below the limit, which is at most 256.
    int number(int limit) { return (atEnd() ? 0 : *m_data++) % limit; }
    QString oneOf(const QStringList& texts) { return texts.at(number(static_cast<int>(texts.size()))); }
    QString text()
    {
        static const QStringList known =
            QStringLiteral(" . 7 DHCP Manual 10.0.0.2 10.20.30.4 255.255.252.0").split(u' ');
        const int kind = number(3);
        QString text = kind == 0 ? oneOf(known) : QString();
        for (int left = kind * number(6); left > 0; --left) // any unit at all, halves of pairs too
            text += QChar(static_cast<char16_t>(number(256) + (kind == 2 ? number(256) * 256 : 0)));
        return text;
    }
    std::optional<QString> optionalText() { return number(8) > 0 ? std::optional(text()) : std::nullopt; }
    /// A value of any kind that a platform could hand out, right or wrong.
    QVariant value(int depth = 3)
    {
        const int kind = number(depth > 0 ? 9 : 6);
        if (kind == 0)
            return text();
        if (kind < 6)
            return std::array<QVariant, 5>{
                {{}, number(2) == 1, qint64(number(256)) << 40, 2.5, QByteArray("x")}}
                .at(static_cast<size_t>(kind - 1));
        if (kind == 6)
            return dictionary(depth - 1);
        QVariantList list;
        for (int left = number(4); left > 0; --left)
            list.append(kind == 7 ? QVariant(text()) : value(depth - 1));
        return kind == 7 && number(2) == 0 ? QVariant(QVariant(list).toStringList()) : QVariant(list);
    }
    Dictionary dictionary(int depth = 3)
    {
        static const QStringList keys =
            QStringLiteral("ConfigMethod Addresses SubnetMasks Router ServerAddresses "
                           "ServerAddress SearchDomains Active Speed Duplex")
                .split(u' ');
        Dictionary dictionary;
        for (int left = number(8); left > 0; --left)
            dictionary.insert(oneOf(keys), value(depth));
        return dictionary;
    }

private:
    const uchar* m_data;
    const uchar* m_end;
};

} // namespace ardeo
