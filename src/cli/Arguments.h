#pragma once

#include "platform/linux/program/SystemChoice.h"

#include <QStringList>

#include <chrono>
#include <optional>
#include <variant>

namespace ardeo
{

/// What a command line asks for.
struct Arguments {
    enum class Command {
        help,
        version,
        list,
        show,
        apply,
        renew,
        enable,
        disable,
        confirm,
        undo,
        watch,
        profiles,
        exportProfiles
    };

    SystemChoice system = SystemChoice::automatic;
    /// The simulated machine's file, where one is named.
    std::optional<QString> stateFile;
    Command command = Command::help;
    bool json = false;
    /// The service's name, for the commands that take one; empty where confirm and undo mean all.
    QString service;
    /// Whether only to say what would change.
    bool dryRun = false;
    /// How long a change can be confirmed before it is taken back; none for one that stays.
    std::optional<std::chrono::seconds> confirmWithin;
    /// Where to export to.
    QString file;

    // What an apply names; everything else keeps its present value.
    std::optional<QString> profile;
    /// The file that the profile is in; none where it is one of the saved ones.
    std::optional<QString> profilesFile;
    bool dhcp = false;
    std::optional<QString> address;
    std::optional<QString> mask;
    std::optional<QString> router;
    bool automaticDNS = false;
    /// One or two servers, each possibly empty.
    std::optional<QStringList> dns;
    std::optional<QString> search;
};

/// Wrong usage, as the one line that says what is wrong.
struct UsageError {
    QString message;
};

/// Reads a command line, the program's name included.
std::variant<Arguments, UsageError> parseArguments(const QStringList& commandLine);

/// What --help prints.
QString helpText();

} // namespace ardeo
