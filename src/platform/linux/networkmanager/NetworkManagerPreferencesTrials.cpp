#include "platform/ConfigurationKeys.h"
#include "platform/ProtocolConfiguration.h"
#include "platform/linux/networkmanager/NetworkManagerError.h"
#include "platform/linux/networkmanager/NetworkManagerPreferences.h"
#include "platform/linux/networkmanager/NetworkManagerServices.h"
#include "platform/linux/networkmanager/PolkitRights.h"
#include "platform/linux/networkmanager/ProfileTranslation.h"
#include "platform/linux/networkmanager/ProfileTrial.h"

#include <algorithm>

namespace ardeo
{

namespace
{

/// How long the daemon leaves that to whoever has begun to take the trial back.
constexpr guint32 secondsToTakeBack = 60;

/// The checkpoint may be gone: the daemon forgets it when it is started anew.
void askCheckpoint(NetworkManagerSession& session, const char* method, GVariant* arguments)
{
    GLibError isGone;
    session.ask(method, arguments, nullptr, isGone);
}

/// The daemon tells the time of the last connection in place of the one in the file, so that the file would
/// be another one when it is written back. Whoever may not read it sees no difference.
void takeTimestampOfFile(NMRemoteConnection* saved, NMConnection* profile)
{
    const char* file = nm_remote_connection_get_filename(saved);
    const std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)> content(g_key_file_new(), &g_key_file_unref);
    if (!file || !g_key_file_load_from_file(content.get(), file, G_KEY_FILE_NONE, nullptr))
        return;
    const guint64 timestamp = g_key_file_get_uint64(content.get(), NM_SETTING_CONNECTION_SETTING_NAME,
                                                    NM_SETTING_CONNECTION_TIMESTAMP, nullptr);
    g_object_set(nm_connection_get_setting_connection(profile), NM_SETTING_CONNECTION_TIMESTAMP, timestamp,
                 nullptr);
}

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
        m_session->refuse(SettingFault::tr("Without a device it could not be taken back by itself."));
        return SystemStatus::failed;
    }
    const SystemStatus right = checkRight(checkpointAction);
    if (right != SystemStatus::ok)
        return right;
    GLibError error;
    const auto seconds = static_cast<guint32>((*m_trial + trialReserve).count());
    const GVariantRef answer = m_session->ask(
        "CheckpointCreate",
        g_variant_new("(@aouu)", paths.get(), seconds, guint32(NM_CHECKPOINT_CREATE_FLAG_NONE)), "(o)",
        error);
    if (!answer)
        return statusOf(error);
    const char* checkpoint = nullptr;
    g_variant_get(answer.get(), "(&o)", &checkpoint);
    const bool wasSaved = !nm_remote_connection_get_unsaved(profile.connection.get());
    takeTimestampOfFile(profile.connection.get(), before);
    ardeo::putOnTrial(changed, before, continuousTime() + *m_trial, checkpoint, wasSaved);
    const SystemStatus status = update(profile, changed, NM_SETTINGS_UPDATE2_FLAG_IN_MEMORY);
    if (status != SystemStatus::ok)
        askCheckpoint(*m_session, "CheckpointDestroy", g_variant_new("(o)", checkpoint));
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
    const char* checkpoint = trial->checkpoint.c_str();
    if (keep) {
        confirm(settings.get());
        status = update(profile, settings.get(), NM_SETTINGS_UPDATE2_FLAG_TO_DISK);
        if (status == SystemStatus::ok)
            askCheckpoint(*m_session, "CheckpointDestroy", g_variant_new("(o)", checkpoint));
        return status;
    }
    // The daemon's way activates the profile anew, and with it goes what was connected over it and the rank
    // of its routes and DNS servers. But only the daemon knows what an enabled service has displaced.
    if (isEnabled(trial->before.get()) || !isEnabled(settings.get())) {
        askCheckpoint(*m_session, "CheckpointAdjustRollbackTimeout",
                      g_variant_new("(ou)", checkpoint, secondsToTakeBack));
        status = takeBack(profile, trial->wasSaved);
        if (status == SystemStatus::ok) {
            askCheckpoint(*m_session, "CheckpointDestroy", g_variant_new("(o)", checkpoint));
            return status;
        }
    }
    askCheckpoint(*m_session, "CheckpointRollback", g_variant_new("(o)", checkpoint));
    return takeBack(profile, trial->wasSaved);
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
    const bool wasSwitched = wasEnabled != isEnabled(settings.get());
    ardeo::takeBack(settings.get(), *trial);
    SystemStatus status =
        update(profile, settings.get(),
               wasSaved ? NM_SETTINGS_UPDATE2_FLAG_TO_DISK : NM_SETTINGS_UPDATE2_FLAG_IN_MEMORY);
    if (status != SystemStatus::ok)
        return status;
    if (wasSwitched)
        profile.changes.enabled = wasEnabled;
    // Not as a change of the method: with that, a lease that has never been away would be asked for anew.
    profile.changes.ipv4 = Dictionary{{routerKey, ipv4DictionaryOf(settings.get()).value(routerKey)}};
    profile.committed = std::move(settings);
    for (NMActiveConnection* active : activationsOf(m_session->client(), profile.connection.get()))
        profile.activationsBefore.insert(nm_object_get_path(NM_OBJECT(active)));
    status = apply(profile);
    if (status == SystemStatus::ok && wasEnabled)
        awaitLease(profile);
    return status;
}

/// What is shown after a trial is then what will stay. A network may also take its time, or never answer.
void NetworkManagerPreferences::awaitLease(const Profile& profile)
{
    constexpr int usualMilliseconds = 3000;
    const QDeadlineTimer limit = std::min(m_session->daemonDeadline(), QDeadlineTimer(usualMilliseconds));
    NMClient* client = m_session->client();
    if (!client || ipv4DictionaryOf(profile.committed.get()).value(configMethodKey) != methodDHCP)
        return;
    m_session->loop().runUntil(limit, [&] {
        const auto devices = devicesOf(client, profile.connection.get());
        return std::ranges::all_of(devices, &nm_device_get_dhcp4_config);
    });
}

} // namespace ardeo
