#include "ui/elements/SystemWords.h"

#include <QStringList>

#include <array>
#include <utility>

namespace ardeo
{

QString inSystemWords(const char* text)
{
    static constexpr auto places = std::to_array<std::pair<const char*, const char*>>({
        {"{thisComputer}", words::thisComputer},
        {"{system}", words::system},
        {"{configuration}", words::configuration},
        {"{settings}", words::settings},
        {"{iconPlace}", words::iconPlace},
    });
    QString result = QString::fromUtf8(text);
    for (const auto& [place, word] : places)
        result.replace(QLatin1String(place), QLatin1String(word));
    const QLatin1String place(words::iconPlace);
    result.replace(QStringLiteral("{apply}"), keys::text(keys::apply));
    return result.replace(QStringLiteral("{IconPlace}"),
                          place.first(1).toString().toUpper() + place.sliced(1));
}

QString keys::text(QKeyCombination keys)
{
    return QKeySequence(keys).toString(QKeySequence::NativeText);
}

QString keys::spacedText(QKeyCombination keys)
{
#ifdef Q_OS_MACOS
    const QStringList names = text(keys).split(QString(), Qt::SkipEmptyParts);
#else
    const QStringList names = text(keys).split(u'+');
#endif
    return names.join(QStringLiteral(" + "));
}

} // namespace ardeo
