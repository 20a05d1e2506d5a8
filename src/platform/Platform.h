#pragma once

#include "platform/Authorization.h"
#include "platform/Clock.h"
#include "platform/FilePanels.h"
#include "platform/LoginItem.h"
#include "platform/SystemConfiguration.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

#include <QCoreApplication>

#include <functional>

namespace ardeo
{

/// Why the system could not be reached.
struct Trouble {
    /// Whether nobody is there to answer, or somebody who does not.
    enum class Kind { absent, silent };
    Kind kind = Kind::absent;
    /// For the user.
    QString sentence;

    Q_DECLARE_TR_FUNCTIONS(ardeo::Trouble)
};

/// Everything the program needs of the operating system, and the only thing that differs between the real
/// machine and the simulated one. It outlives whoever uses it.
struct Platform {
    std::unique_ptr<SystemConfiguration> systemConfiguration;
    std::unique_ptr<Authorization> authorization;
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<UserDefaults> userDefaults;
    std::unique_ptr<Clock> clock;
    /// Null where there is no desktop to ask on.
    std::unique_ptr<FilePanels> filePanels;
    /// Null where there is no desktop to open anything on.
    std::unique_ptr<Workspace> workspace;
    /// Says which system this is, for people.
    QString description;
    /// Why the system could not be reached the last time it was asked; none when it answered.
    std::function<std::optional<Trouble>()> trouble = [] { return std::nullopt; };
    /// The interface (eth0, for example) over which whoever uses the program reaches this computer; none
    /// where they sit before it.
    std::function<std::optional<QString>()> remoteInterface = [] { return std::nullopt; };
};

/// What the program is called wherever the system wants a unique name for it.
inline constexpr auto applicationIdentifier = "org.ardeo.IPConfig";

} // namespace ardeo
