#include "ui/elements/SystemWords.h"

#include <QCoreApplication>
#include <QStringList>

#include <array>
#include <utility>

namespace ardeo
{

QString inSystemWords(const QString& text)
{
    static constexpr auto places = std::to_array<std::pair<const char*, const char*>>({
        {"{thisComputer}", words::thisComputer},
        {"{system}", words::system},
        {"{configuration}", words::configuration},
        {"{settings}", words::settings},
        {"{iconPlace}", words::iconPlace},
    });
    const auto translated = [](const char* word) {
        return QCoreApplication::translate("ardeo::words", word);
    };
    QString result = text;
    for (const auto& [place, word] : places)
        result.replace(QLatin1String(place), translated(word));
    const QString place = translated(words::iconPlace);
    result.replace(QStringLiteral("{apply}"), keys::text(keys::apply));
    return result.replace(QStringLiteral("{IconPlace}"), place.first(1).toUpper() + place.sliced(1));
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
