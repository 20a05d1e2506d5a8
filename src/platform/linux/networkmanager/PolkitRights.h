#pragma once

#include "platform/linux/networkmanager/GLibLoop.h"

#include <QString>

#include <optional>

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

// The actions of NetworkManager that changes take: to save a profile of everybody's, or one of the user's
// own, and to take connections up and down.
inline constexpr auto modifySystemAction = "org.freedesktop.NetworkManager.settings.modify.system";
inline constexpr auto modifyOwnAction = "org.freedesktop.NetworkManager.settings.modify.own";
inline constexpr auto networkControlAction = "org.freedesktop.NetworkManager.network-control";
/// To have what is changed taken back.
inline constexpr auto checkpointAction = "org.freedesktop.NetworkManager.checkpoint-rollback";

/// Asks polkit about an action; with interaction it may prompt the user, and takes as long as they do. None
/// when polkit is not there or does not answer.
std::optional<PolkitAnswer> askPolkit(GLibLoop& loop, QDeadlineTimer deadline, const char* action,
                                      bool interaction);

/// Takes back a kept consent. One that has lapsed already is no error.
void revokeTemporaryAuthorization(GLibLoop& loop, QDeadlineTimer deadline, const QString& identifier);

/// Whether polkit is there.
bool polkitAnswers(GLibLoop& loop, QDeadlineTimer deadline);

} // namespace ardeo
