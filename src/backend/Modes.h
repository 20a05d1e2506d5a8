#pragma once

#include "backend/Text.h"

#include <QHashFunctions>

#include <array>
#include <optional>

namespace ardeo
{

/// How a service obtains its IPv4 address.
enum class IPv4Mode { dhcp, manual };

/// Whether DNS servers come from the network or are set by hand.
enum class DNSMode { automatic, manual };

/// What an enumeration with texts for its cases offers; one specialisation for each.
template <typename Mode>
struct ModeTexts;

template <>
struct ModeTexts<IPv4Mode> {
    static constexpr std::array allCases{IPv4Mode::dhcp, IPv4Mode::manual};
    static constexpr std::array texts{u"DHCP", u"Manual"};
};

template <>
struct ModeTexts<DNSMode> {
    static constexpr std::array allCases{DNSMode::automatic, DNSMode::manual};
    static constexpr std::array texts{u"Automatic", u"Manual"};
};

/// The text that stands for the case, in files and on screen; it is also the case's identity.
template <typename Mode>
QString rawValue(Mode mode)
{
    return QString::fromUtf16(ModeTexts<Mode>::texts.at(static_cast<size_t>(mode)));
}

/// The case whose text this is exactly; none for any other text.
template <typename Mode>
std::optional<Mode> modeFromRawValue(const QString& text)
{
    for (const Mode mode : ModeTexts<Mode>::allCases) {
        if (rawValue(mode) == text)
            return mode;
    }
    return std::nullopt;
}

inline size_t qHash(IPv4Mode mode, size_t seed = 0)
{
    return ::qHash(static_cast<int>(mode), seed);
}

inline size_t qHash(DNSMode mode, size_t seed = 0)
{
    return ::qHash(static_cast<int>(mode), seed);
}

} // namespace ardeo
