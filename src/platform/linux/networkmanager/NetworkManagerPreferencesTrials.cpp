#include "platform/linux/networkmanager/NetworkManagerError.h"
#include "platform/linux/networkmanager/NetworkManagerPreferences.h"
#include "platform/linux/networkmanager/NetworkManagerServices.h"
#include "platform/linux/networkmanager/PolkitRights.h"
#include "platform/linux/networkmanager/ProfileTranslation.h"
#include "platform/linux/networkmanager/ProfileTrial.h"

namespace ardeo
{

namespace
{

/// How much longer the daemon waits before it takes a trial back than whoever began it, and does so as well.
constexpr std::chrono::seconds reserve(5);

} // namespace

/// Has the daemon keep the state of the devices, and changes the profile in memory alone.
SystemStatus NetworkManagerPreferences::putOnTrial(const Profile& profile, NMConnection* changed,
                                                   NMConnection* before)
{
    GVariantBuilder devices;
    g_variant_builder_init(&devices, G_VARIANT_TYPE_OBJECT_PATH_ARRAY);
    const auto affected = devicesOf(m_session->client(), profile.connection.get());
    for (NMDevice* device : affected)
        g_variant_builder_add(&devices, "o", nm_object_get_path(NM_OBJECT(device)));
    const GVariantRef paths(g_variant_ref_sink(g_variant_builder_end(&devices)));
    if (affected.empty()) {
        m_session->refuse(QStringLiteral("Without a device it could not be taken back by itself."));
        return SystemStatus::failed;
    }
    const SystemStatus right = checkRight(checkpointAction);
    if (right != SystemStatus::ok)
        return right;
    GLibError error;
    const auto seconds = static_cast<guint32>((*m_trial + reserve).count());
    const GVariantRef answer = m_session->ask(
        "CheckpointCreate",
        g_variant_new("(@aouu)", paths.get(), seconds, guint32(NM_CHECKPOINT_CREATE_FLAG_NONE)), "(o)",
        error);
    if (!answer)
        return statusOf(error);
    const char* checkpoint = nullptr;
    g_variant_get(answer.get(), "(&o)", &checkpoint);
    const bool wasSaved = !nm_remote_connection_get_unsaved(profile.connection.get());
    ardeo::putOnTrial(changed, before, continuousTime() + *m_trial, checkpoint, wasSaved);
    const SystemStatus status = update(profile, changed, NM_SETTINGS_UPDATE2_FLAG_IN_MEMORY);
    if (status != SystemStatus::ok) {
        GLibError ignored;
        m_session->ask("CheckpointDestroy", g_variant_new("(o)", checkpoint), nullptr, ignored);
    }
    return status;
}

bool NetworkManagerPreferences::endTrial(const QString& serviceID, bool keep)
{
    if (!m_lock.isTaken())
        return end(SystemStatus::needLock);
    currentSet();
    for (const auto& profile : m_profiles) {
        if (serviceID == QString::fromUtf8(nm_connection_get_uuid(NM_CONNECTION(profile->connection.get()))))
            return end(endTrial(*profile, keep));
    }
    return end(SystemStatus::noKey);
}

SystemStatus NetworkManagerPreferences::endTrial(Profile& profile, bool keep)
{
    SystemStatus status = checkRightToChange(profile);
    if (status == SystemStatus::ok)
        status = checkRight(checkpointAction);
    if (status != SystemStatus::ok)
        return status;
    GLibError error;
    const GRef<NMConnection> settings = m_session->read(profile.connection.get(), error);
    if (!settings)
        return statusOf(error);
    const auto trial = trialOf(settings.get());
    if (!trial) {
        m_session->refuse(noTrialReason());
        return SystemStatus::noKey;
    }
    if (keep) {
        confirm(settings.get());
        status = update(profile, settings.get(), NM_SETTINGS_UPDATE2_FLAG_TO_DISK);
        if (status != SystemStatus::ok)
            return status;
    }
    GLibError isGone;
    m_session->ask(keep ? "CheckpointDestroy" : "CheckpointRollback",
                   g_variant_new("(o)", trial->checkpoint.c_str()), nullptr, isGone);
    return keep ? SystemStatus::ok : takeBack(profile, trial->wasSaved);
}

/// Does what the daemon's checkpoint did not: it knows of no profile that was not active when it was made,
/// and is gone when the daemon was started anew.
SystemStatus NetworkManagerPreferences::takeBack(Profile& profile, bool wasSaved)
{
    GLibError error;
    GRef<NMConnection> settings = m_session->read(profile.connection.get(), error);
    if (!settings)
        return statusOf(error);
    const auto trial = trialOf(settings.get());
    if (!trial)
        return wasSaved ? update(profile, nullptr, NM_SETTINGS_UPDATE2_FLAG_TO_DISK) : SystemStatus::ok;
    const bool wasEnabled = isEnabled(trial->before.get());
    if (wasEnabled != isEnabled(settings.get()))
        profile.changes.enabled = wasEnabled;
    ardeo::takeBack(settings.get(), *trial);
    profile.changes.ipv4 = ipv4DictionaryOf(settings.get());
    const SystemStatus status =
        update(profile, settings.get(),
               wasSaved ? NM_SETTINGS_UPDATE2_FLAG_TO_DISK : NM_SETTINGS_UPDATE2_FLAG_IN_MEMORY);
    if (status != SystemStatus::ok)
        return status;
    profile.committed = std::move(settings);
    for (NMActiveConnection* active : activationsOf(m_session->client(), profile.connection.get()))
        profile.activationsBefore.insert(nm_object_get_path(NM_OBJECT(active)));
    return apply(profile);
}

} // namespace ardeo
