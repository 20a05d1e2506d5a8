#pragma once

#include "platform/linux/GLibLoop.h"

#include <QString>

#include <optional>
#include <span>

namespace ardeo
{

/// polkit's word on one action for this process.
struct PolkitAnswer {
    bool authorized = false;
    /// Whether polkit keeps a consent for a while, so that asking ahead is of use. Known only when not
    /// authorized.
    bool keepsConsent = false;
    /// The kept consent that allows it, if one does.
    std::optional<QString> temporaryAuthorization;
};

/// The polkit actions that stand behind changing the network's configuration.
std::span<const char* const> networkActions();

/// Asks polkit about an action; with interaction it may prompt the user, and takes as long as they do. None
/// when polkit is not there or does not answer.
std::optional<PolkitAnswer> askPolkit(GLibLoop& loop, QDeadlineTimer deadline, const char* action,
                                      bool interaction);

/// Takes back a kept consent. One that has lapsed already is no error.
void revokeTemporaryAuthorization(GLibLoop& loop, QDeadlineTimer deadline, const QString& identifier);

/// Whether polkit is there.
bool polkitAnswers(GLibLoop& loop, QDeadlineTimer deadline);

} // namespace ardeo
