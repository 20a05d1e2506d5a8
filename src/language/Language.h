#pragma once

#include <QLocale>
#include <QTranslator>

namespace ardeo
{

/// The language that the program speaks for as long as this lives: the first of the user's for which there is
/// a translation. Where that is English, or there is none, nothing is loaded. Made after the application
/// object, and before anything is said.
class Language final
{
public:
    /// Takes the languages by their names, as in "de-AT" or "de", the most wanted first.
    explicit Language(const QStringList& wanted = QLocale::system().uiLanguages());

    const QLocale& locale() const { return m_locale; }

private:
    bool load(const QString& language);

    QLocale m_locale{QLocale::English};
    QTranslator m_own;
    /// The toolkit's own words, on its file panels for one.
    QTranslator m_toolkit;
};

} // namespace ardeo
