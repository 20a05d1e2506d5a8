#pragma once

#include <QKeySequence>
#include <QString>

namespace ardeo
{

/// What the system that the program runs on calls things, to be translated; translators see where each word
/// goes.
namespace words
{

#ifdef Q_OS_MACOS
inline constexpr auto thisComputer = QT_TRANSLATE_NOOP("ardeo::words", "this Mac");
inline constexpr auto system = QT_TRANSLATE_NOOP("ardeo::words", "macOS");
inline constexpr auto configuration = QT_TRANSLATE_NOOP(
    "ardeo::words", "macOS System Configuration, the same framework used by Network preferences");
inline constexpr auto settings = QT_TRANSLATE_NOOP("ardeo::words", "System Settings");
inline constexpr auto iconPlace = QT_TRANSLATE_NOOP("ardeo::words", "menu bar");
#else
inline constexpr auto thisComputer = QT_TRANSLATE_NOOP("ardeo::words", "this computer");
inline constexpr auto system = QT_TRANSLATE_NOOP("ardeo::words", "Linux");
inline constexpr auto configuration = QT_TRANSLATE_NOOP(
    "ardeo::words", "NetworkManager, the same service used by your desktop's network settings");
inline constexpr auto settings = QT_TRANSLATE_NOOP("ardeo::words", "the desktop's settings");
inline constexpr auto iconPlace = QT_TRANSLATE_NOOP("ardeo::words", "system tray");
#endif

} // namespace words

/// The text with {thisComputer}, {system}, {configuration}, {settings} and {iconPlace} (or {IconPlace}, as it
/// begins a sentence) in the system's words, and {apply} as its keys.
QString inSystemWords(const QString& text);

/// The keys of the program's commands.
namespace keys
{

inline constexpr QKeyCombination apply = Qt::CTRL | Qt::Key_Return;
inline constexpr QKeyCombination applyOnKeypad = Qt::CTRL | Qt::Key_Enter;
inline constexpr QKeyCombination refresh = Qt::CTRL | Qt::Key_R;
inline constexpr QKeyCombination importProfiles = Qt::CTRL | Qt::SHIFT | Qt::Key_I;
inline constexpr QKeyCombination exportProfiles = Qt::CTRL | Qt::SHIFT | Qt::Key_E;
inline constexpr QKeyCombination help = Qt::CTRL | Qt::Key_Slash;
inline constexpr QKeyCombination hide = Qt::CTRL | Qt::Key_H;
inline constexpr QKeyCombination close = Qt::CTRL | Qt::Key_W;
inline constexpr QKeyCombination quit = Qt::CTRL | Qt::Key_Q;

/// As the system writes them: "⌘R", "Ctrl+R".
QString text(QKeyCombination keys);
/// The same with room between the keys: "⌘ + R", "Ctrl + R".
QString spacedText(QKeyCombination keys);

} // namespace keys

} // namespace ardeo
