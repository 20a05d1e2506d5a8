#include "language/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace ardeo
{

Language::Language(const QStringList& wanted)
{
    for (const QString& name : wanted) {
        const QString language = name.section(u'-', 0, 0);
        if (language == QStringLiteral("en") || load(language))
            return;
    }
}

bool Language::load(const QString& language)
{
    if (!m_own.load(QStringLiteral(":/translations/ardeo_%1.qm").arg(language)))
        return false;
    m_locale = QLocale(language);
    QCoreApplication::installTranslator(&m_own);
    // Whether they are installed is for the system to say; without them, the toolkit speaks English.
    if (m_toolkit.load(QStringLiteral("qtbase_") + language,
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_toolkit);
    return true;
}

} // namespace ardeo
